// SPDX-License-Identifier: GPL-3.0-or-later

// How mouse, keys and drops reach the handlers of the form.

#include <string>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>

#include "app/CaptionButton.h"
#include "app/DraggedFiles.h"
#include "app/MenuRows.h"
#include "app/MessageBoxes.h"
#include "app/NodeTree.h"
#include "app/OutputPane.h"
#include "app/TextBox.h"
#include "app/frmVantrel.h"

namespace app {

void frmVantrel::ConnectControls() {
  for (const auto& [button, handler] : controls_.Buttons) {
    connect(button, &QPushButton::clicked, this,
            [this, run = handler] { RunCommand([&] { (this->*run)(); }); });
  }
  for (const auto& [box, handler] : controls_.Boxes) {
    // Later, when the proposals below the box have taken the key, too, and are gone.
    connect(
        box, &TextBox::EnterPressed, this,
        [this, run = handler] { RunCommand([&] { (this->*run)(); }); }, Qt::QueuedConnection);
  }
  ProposeInBoxes();
  // The first click of a double-click fills the boxes; the second must not be dropped for that.
  connect(controls_.tre, &NodeTree::NodeClick, this, [this](const QTreeWidgetItem* node) {
    if (!gate_.IsBusy()) Run([&] { tre_NodeClick(node); });
  });
  connect(controls_.tre, &NodeTree::DblClick, this,
          [this](const QTreeWidgetItem* node) { RunCommand([&] { tre_DblClick(node); }); });
}

void frmVantrel::AddActions() {
  for (const MenuRow& row : MenuRows()) AddAction(row);
  for (const FormRow& row : FormRows()) {
    const auto* button = std::get_if<ButtonRow>(&row);
    if (button != nullptr && IsReportButton(*button)) AddAction(RowOf(*button));
  }
}

void frmVantrel::AddAction(const MenuRow& row) {
  const auto* handler = std::get_if<FormHandler>(&row.Run);
  if (handler == nullptr) return;
  QAction* action = NewAction(row, this);
  if (row.Turn == MenuTurn::Command) {
    connect(action, &QAction::triggered, this,
            [this, run = *handler] { RunCommand([&] { (this->*run)(); }); });
  } else {
    connect(action, &QAction::triggered, this, *handler);
  }
  addAction(action);
}

void frmVantrel::AcceptDrops() {
  setAcceptDrops(true);
  // The other program waits for the end of the drop, so a message box must not keep it.
  connect(
      this, &frmVantrel::FilesDropped, this,
      [this](const std::vector<std::string>& files) {
        RunCommand([&] { OpenDroppedFiles(files); });
      },
      Qt::QueuedConnection);
  for (QLineEdit* box : Boxes()) box->installEventFilter(this);
}

void frmVantrel::OpenDroppedFiles(const std::vector<std::string>& files) {
  OpenFile(files.front());
  if (files.size() == 1) return;
  ShowMessage(this, "One file can be open at a time.  Of the " + std::to_string(files.size()) +
                        " files that were dropped the first was taken, the others were left.");
}

bool frmVantrel::eventFilter(QObject* watched, QEvent* event) {
  // A text box takes dropped texts, but a file dropped on it is for the form. Entering and moving
  // are kinds of dropping to the toolkit.
  if (auto* drop = dynamic_cast<QDropEvent*>(event);
      drop != nullptr && !DraggedFiles(drop->mimeData()).empty()) {
    if (event->type() == QEvent::Drop) {
      dropEvent(drop);
    } else {
      AcceptCopy(drop);
    }
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void frmVantrel::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedFiles(event->mimeData()).empty()) AcceptCopy(event);
}

void frmVantrel::dropEvent(QDropEvent* event) {
  const std::vector<std::string> files = DraggedFiles(event->mimeData());
  // While a message box waits, the command behind it is not done yet.
  if (files.empty() || gate_.IsBusy() || QApplication::activeModalWidget() != nullptr) return;
  if (AcceptCopy(event)) emit FilesDropped(files);
}

}  // namespace app
