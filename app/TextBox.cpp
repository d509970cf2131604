// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TextBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

#include "app/DarkOutline.h"

namespace app {

void TextBox::focusOutEvent(QFocusEvent* event) {
  // What is selected stays so while a menu is open, which may be asked to copy it.
  QFocusEvent underMenu(QEvent::FocusOut, Qt::PopupFocusReason);
  const bool toMenu = event->reason() == Qt::MenuBarFocusReason;
  QLineEdit::focusOutEvent(toMenu ? &underMenu : event);
}

QWidget* TextBox::ShownProposals() const {
  QWidget* list = completer() == nullptr ? nullptr : completer()->popup();
  return list != nullptr && list->isVisible() ? list : nullptr;
}

void TextBox::HideProposals() const {
  if (QWidget* list = ShownProposals()) list->hide();
}

bool TextBox::event(QEvent* event) {
  // The list keeps the box from learning that it was left, so it goes before that.
  if (event->type() == QEvent::FocusAboutToChange || event->type() == QEvent::WindowDeactivate) {
    HideProposals();
  }
  // The list comes before a shortcut of the window.
  if (event->type() == QEvent::ShortcutOverride && ShownProposals() != nullptr &&
      dynamic_cast<const QKeyEvent&>(*event).key() == Qt::Key_Escape) {
    event->accept();
    return true;
  }
  return QLineEdit::event(event);
}

void TextBox::keyPressEvent(QKeyEvent* event) {
  QWidget* list = ShownProposals();
  const int key = event->key();
  if (list != nullptr && (key == Qt::Key_Up || key == Qt::Key_Down)) {
    QCoreApplication::sendEvent(list, event);
    return;
  }
  if (list != nullptr && key == Qt::Key_Escape) {
    list->hide();
    return;
  }
  QLineEdit::keyPressEvent(event);
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return;
  HideProposals();
  if (!event->isAutoRepeat()) emit EnterPressed();
}

void TextBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (hasFocus()) return;  // the style marks it
  QPainter painter(this);
  OutlineInTheDark(painter, rect(), palette());
}

}  // namespace app
