// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Screens.h"

#include <algorithm>

namespace app {

QPoint FormPosition(QSize screen, QSize form) {
  return {(screen.width() - form.width()) / 2, (screen.height() - form.height()) / 3};
}

QPoint NearestPlaceInside(const QRect& available, const QRect& frame) {
  const QPoint last = available.bottomRight() - QPoint(frame.width() - 1, frame.height() - 1);
  return {std::max(available.left(), std::min(frame.left(), last.x())),
          std::max(available.top(), std::min(frame.top(), last.y()))};
}

}  // namespace app
