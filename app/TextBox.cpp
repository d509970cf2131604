// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TextBox.h"

#include <QPainter>

#include "app/DarkOutline.h"

namespace app {

void TextBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (hasFocus()) return;  // the style marks it
  QPainter painter(this);
  OutlineInTheDark(painter, rect(), palette());
}

}  // namespace app
