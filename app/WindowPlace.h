// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QPoint>
#include <QSize>

class QScreen;
class QWidget;

namespace app {

// Where a window stood: the corner of its frame, the size of its client area, both while it is not
// maximized, and whether it was.
struct KnownPlace {
  QPoint Corner;
  QSize Client;
  bool Maximized = false;
};

// Where the window with that client area stands now.
KnownPlace PlaceOf(const QWidget& window, const QWidget& client);

// Size and place of a top-level window within the part of its screen that no panel covers. What
// counts is the size of its client area: the window itself, or what fills it below its menu bar.
class WindowPlace {
 public:
  // Both must outlive this object; `client` is `window` or its central widget.
  WindowPlace(QWidget& window, QWidget& client) : window_(window), client_(client) {}

  // Before the window is shown: its client area as it is drawn, or as much smaller as the menu bar
  // and the frame that the window system will most likely put around it ask for; in the middle of
  // the screen and a third of the way down. Where it stood last takes the place of that, if that is
  // on a screen of today.
  void Open(const std::optional<KnownPlace>& known);

  // Once the window is shown in its real frame: shrinks and moves it into the work area where it
  // sticks out. A size that the window system gave it is left.
  void FitFrame();

 private:
  void OpenAsDrawn();
  void OpenAt(const KnownPlace& known, const QScreen& screen);
  void ResizeWithin(const QScreen& screen);

  QWidget& window_;
  QWidget& client_;
  std::optional<QSize> wanted_;  // of the client area, other than as it is drawn
  QSize openedSize_;
};

}  // namespace app
