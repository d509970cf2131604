// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include <QTreeWidget>

#include "reports/NavigationTree.h"

namespace app {

// The tree of groups, parameters and labels. The mouse and the keyboard do the same: moving to a
// node by keys clicks it, the space bar clicks the one the keys stand on, Enter double-clicks it.
// The highlighted node is the one that was clicked last: other buttons than the left one do
// nothing, and a node that the mouse was pressed on is clicked wherever the button is let go. A
// click beside the nodes changes nothing.
class NodeTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit NodeTree(QWidget* parent);

  // Replaces what the tree holds, in the order given.
  void Fill(const std::vector<reports::TreeNode>& groups);

 signals:
  void NodeClick(QTreeWidgetItem* node);
  void DblClick(QTreeWidgetItem* node);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  // Neither mouse nor keys: a screen reader does so.
  void ClickWhatOthersHighlight();
  bool IsNothingHighlighted() const;
  // False where the keys stand on no node.
  bool HighlightCurrent();

  const QTreeWidgetItem* pressed_ = nullptr;  // only ever compared
  bool isPressed_ = false;
  bool isAtKeys_ = false;
};

// How many ancestors a node has: 0 for a group, 1 for a parameter, 2 for a label.
std::int16_t NodeDepth(const QTreeWidgetItem* node);

}  // namespace app
