// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/WindowPlace.h"

#include <QLayout>
#include <QMargins>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>

#include "app/Screens.h"

namespace app {

namespace {

// The frame that the window system will most likely put around the window.
QMargins UsualFrame(const QWidget& window) {
  return {1, window.style()->pixelMetric(QStyle::PM_TitleBarHeight), 1, 1};
}

// What the menu bar takes of the window; known before the window is laid out.
QSize AboveClient(const QWidget& window) {
  const QLayout* layout = window.layout();
  const auto* bar = layout == nullptr ? nullptr : qobject_cast<QMenuBar*>(layout->menuBar());
  if (bar == nullptr || bar->isNativeMenuBar()) return {0, 0};
  return {0, bar->sizeHint().height()};
}

}  // namespace

void WindowPlace::OpenWithin() {
  const QRect room = window_.screen()->availableGeometry();
  const QSize above = AboveClient(window_);
  const QSize inside = room.marginsRemoved(UsualFrame(window_)).size() - above;
  window_.resize(FormSizeWithin(inside) + above);
  openedSize_ = window_.size();
  const QRect place = window_.screen()->geometry();
  const QPoint corner = place.topLeft() + FormPosition(place.size(), window_.size());
  window_.move(NearestPlaceInside(room, {corner, window_.size()}));
}

void WindowPlace::FitFrame() {
  if (window_.isMaximized() || window_.isFullScreen()) return;
  const QRect room = window_.screen()->availableGeometry();
  const QSize frame = window_.frameSize() - window_.size();
  const QSize above = window_.size() - client_.size();
  // A window system that gave the window another size has its reasons.
  if (window_.size() == openedSize_) {
    window_.resize(FormSizeWithin(room.size() - frame - above) + above);
  }
  const QPoint place = NearestPlaceInside(room, {window_.pos(), window_.size() + frame});
  if (place != window_.pos()) window_.move(place);
}

}  // namespace app
