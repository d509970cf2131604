// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TextBox.h"

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

void TextBox::keyPressEvent(QKeyEvent* event) {
  QLineEdit::keyPressEvent(event);
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && !event->isAutoRepeat()) emit EnterPressed();
}

void TextBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (hasFocus()) return;  // the style marks it
  QPainter painter(this);
  OutlineInTheDark(painter, rect(), palette());
}

}  // namespace app
