// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TextBox.h"

#include <QFocusEvent>
#include <QPainter>

#include "app/DarkOutline.h"

namespace app {

void TextBox::focusOutEvent(QFocusEvent* event) {
  // What is selected stays so while a menu is open, which may be asked to copy it.
  QFocusEvent underMenu(QEvent::FocusOut, Qt::PopupFocusReason);
  const bool toMenu = event->reason() == Qt::MenuBarFocusReason;
  QLineEdit::focusOutEvent(toMenu ? &underMenu : event);
}

void TextBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (hasFocus()) return;  // the style marks it
  QPainter painter(this);
  OutlineInTheDark(painter, rect(), palette());
}

}  // namespace app
