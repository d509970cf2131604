// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/DarkOutline.h"

#include <QPainter>

namespace app {

bool AreDark(const QPalette& colours) {
  constexpr int kDarkBelow = 128;
  return colours.color(QPalette::Window).lightness() < kDarkBelow;
}

void OutlineInTheDark(QPainter& painter, const QRect& box, const QPalette& colours) {
  if (!AreDark(colours)) return;
  constexpr int kHalfSeen = 128;
  QColor line = colours.color(QPalette::WindowText);
  line.setAlpha(kHalfSeen);
  painter.setPen(line);
  painter.drawRect(box.adjusted(0, 0, -1, -1));
}

}  // namespace app
