// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/WindowPlace.h"

#include <QGuiApplication>
#include <QLayout>
#include <QMargins>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>

#include "app/FormLayout.h"
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

// The screen of today on which enough of the title bar would be seen to take the window by.
const QScreen* ScreenOf(const KnownPlace& known) {
  constexpr int kEnough = 100;
  const QRect top(known.Corner, QSize(known.Client.width(), 1));
  for (const QScreen* screen : QGuiApplication::screens()) {
    if (screen->availableGeometry().intersected(top).width() >= kEnough) return screen;
  }
  return nullptr;
}

}  // namespace

KnownPlace PlaceOf(const QWidget& window, const QWidget& client) {
  const QSize above = window.size() - client.size();
  const QPoint frame = window.geometry().topLeft() - window.pos();
  const QRect normal = window.normalGeometry();
  if (window.isMaximized() || window.isFullScreen()) {
    return {normal.topLeft() - frame, normal.size() - above, true};
  }
  return {window.pos(), client.size(), false};
}

void WindowPlace::Open(const std::optional<KnownPlace>& known) {
  const QScreen* screen = known ? ScreenOf(*known) : nullptr;
  if (screen == nullptr) {
    OpenAsDrawn();
  } else {
    OpenAt(*known, *screen);
  }
}

void WindowPlace::ResizeWithin(const QScreen& screen) {
  const QSize above = AboveClient(window_);
  const QSize inside =
      screen.availableGeometry().marginsRemoved(UsualFrame(window_)).size() - above;
  window_.resize(FormSizeWithin(inside, wanted_.value_or(kDesignSize)) + above);
  openedSize_ = window_.size();
}

void WindowPlace::OpenAsDrawn() {
  const QScreen& screen = *window_.screen();
  ResizeWithin(screen);
  const QRect place = screen.geometry();
  const QPoint corner = place.topLeft() + FormPosition(place.size(), window_.size());
  window_.move(NearestPlaceInside(screen.availableGeometry(), {corner, window_.size()}));
}

void WindowPlace::OpenAt(const KnownPlace& known, const QScreen& screen) {
  wanted_ = known.Client;
  ResizeWithin(screen);
  window_.move(NearestPlaceInside(screen.availableGeometry(), {known.Corner, window_.size()}));
  if (known.Maximized) window_.setWindowState(Qt::WindowMaximized);
}

void WindowPlace::FitFrame() {
  if (window_.isMaximized() || window_.isFullScreen()) return;
  const QRect room = window_.screen()->availableGeometry();
  const QSize frame = window_.frameSize() - window_.size();
  const QSize above = window_.size() - client_.size();
  // A window system that gave the window another size has its reasons.
  if (window_.size() == openedSize_) {
    window_.resize(FormSizeWithin(room.size() - frame - above, wanted_.value_or(kDesignSize)) +
                   above);
  }
  const QPoint place = NearestPlaceInside(room, {window_.pos(), window_.size() + frame});
  if (place != window_.pos()) window_.move(place);
}

}  // namespace app
