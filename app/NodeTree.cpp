// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/NodeTree.h"

#include <memory>
#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include "app/QtText.h"

namespace app {

namespace {

std::unique_ptr<QTreeWidgetItem> MakeItem(const reports::TreeNode& node) {
  auto item = std::make_unique<QTreeWidgetItem>(QStringList(ToQString(node.Text)));
  for (const reports::TreeNode& child : node.Children) item->addChild(MakeItem(child).release());
  return item;
}

bool MovesUp(const QKeyEvent& event) {
  return event.key() == Qt::Key_Up || event.key() == Qt::Key_PageUp || event.key() == Qt::Key_Home;
}

}  // namespace

NodeTree::NodeTree(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(1);
  setHeaderLabel(QStringLiteral("Groups, Parameters, & Labels"));  // read out, not shown
  setHeaderHidden(true);
  setUniformRowHeights(true);
  connect(this, &QTreeWidget::itemClicked, this, &NodeTree::NodeClick);
  connect(this, &QTreeWidget::itemDoubleClicked, this, &NodeTree::DblClick);
  connect(this, &QTreeWidget::itemSelectionChanged, this, &NodeTree::ClickWhatOthersHighlight);
}

void NodeTree::Fill(const std::vector<reports::TreeNode>& groups) {
  clear();
  QList<QTreeWidgetItem*> items;
  for (const reports::TreeNode& group : groups) items << MakeItem(group).release();
  addTopLevelItems(items);
}

void NodeTree::ClickWhatOthersHighlight() {
  if (isPressed_ || isAtKeys_ || IsNothingHighlighted()) return;
  setCurrentItem(selectedItems().constFirst());
  emit NodeClick(currentItem());
}

void NodeTree::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback atKeys(isAtKeys_, true);
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (event->isAutoRepeat() || !HighlightCurrent()) return;
    emit DblClick(currentItem());
    return;
  }
  const QTreeWidgetItem* before = currentItem();
  QTreeWidget::keyPressEvent(event);
  const bool clicks = currentItem() != before || event->key() == Qt::Key_Space ||
                      event->key() == Qt::Key_Select || (MovesUp(*event) && IsNothingHighlighted());
  if (clicks && HighlightCurrent()) emit NodeClick(currentItem());
}

bool NodeTree::IsNothingHighlighted() const { return selectedItems().isEmpty(); }

bool NodeTree::HighlightCurrent() {
  if (currentItem() == nullptr) return false;
  setCurrentItem(currentItem());
  return true;
}

void NodeTree::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = itemAt(event->pos());
  isPressed_ = true;
  QTreeWidget::mousePressEvent(event);
}

void NodeTree::mouseMoveEvent(QMouseEvent* event) {
  // A dragged mouse would highlight node after node.
  if (event->buttons() == Qt::NoButton) QTreeWidget::mouseMoveEvent(event);
}

void NodeTree::mouseReleaseEvent(QMouseEvent* event) {
  // A press that was dropped while a command ran takes its release along.
  if (event->button() != Qt::LeftButton || !std::exchange(isPressed_, false)) return;
  const bool slipped = pressed_ != nullptr && itemAt(event->pos()) != pressed_;
  QTreeWidget::mouseReleaseEvent(event);
  if (slipped && currentItem() == pressed_) emit NodeClick(currentItem());
}

void NodeTree::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  isPressed_ = true;
  QTreeWidget::mouseDoubleClickEvent(event);
}

QItemSelectionModel::SelectionFlags NodeTree::selectionCommand(const QModelIndex& index,
                                                               const QEvent* /*event*/) const {
  if (!index.isValid()) return QItemSelectionModel::NoUpdate;
  return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

std::int16_t NodeDepth(const QTreeWidgetItem* node) {
  std::int16_t depth = 0;
  while ((node = node->parent()) != nullptr) ++depth;
  return depth;
}

}  // namespace app
