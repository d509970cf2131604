// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ScreenRoom.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

#include "app/Screens.h"

namespace app {

namespace {

QSize UsualFrame(const QWidget& window) {
  constexpr int kEdge = 8;  // a little more than the edges of most frames
  return {kEdge, window.style()->pixelMetric(QStyle::PM_TitleBarHeight) + kEdge};
}

}  // namespace

void OpenWithinScreen(QWidget& window, QSize wanted) {
  window.resize(wanted.boundedTo(window.screen()->availableGeometry().size() - UsualFrame(window)));
}

void OpenWithinScreen(QWidget& window) { OpenWithinScreen(window, window.size()); }

void OpenInTheMiddle(QWidget& window, QSize wanted) {
  OpenWithinScreen(window, wanted);
  const QRect room = window.screen()->availableGeometry();
  const QSize framed = window.size() + UsualFrame(window);
  window.move(NearestPlaceInside(room, {room.center() - window.rect().center(), framed}));
}

}  // namespace app
