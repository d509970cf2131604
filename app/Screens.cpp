// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Screens.h"

#include <algorithm>

namespace app {

QSize FormSizeWithin(QSize room, QSize wanted) {
  constexpr int kLeastTree = 60;  // three lines
  constexpr int kWithoutTree = kDesignSize.height() - kTreeHeight;
  const QSize size = room.boundedTo(wanted);
  if (size.height() == wanted.height() || size.height() < kWithoutTree ||
      size.height() >= kWithoutTree + kLeastTree)
    return size;
  return {size.width(), kWithoutTree - 1};
}

QPoint FormPosition(QSize screen, QSize form) {
  return {(screen.width() - form.width()) / 2, (screen.height() - form.height()) / 3};
}

QPoint NearestPlaceInside(const QRect& available, const QRect& frame) {
  const QPoint last = available.bottomRight() - QPoint(frame.width() - 1, frame.height() - 1);
  return {std::max(available.left(), std::min(frame.left(), last.x())),
          std::max(available.top(), std::min(frame.top(), last.y()))};
}

}  // namespace app
