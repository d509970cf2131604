// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QWidget;

namespace app {

// Size and place of a top-level window within the part of its screen that no panel covers. What
// counts is the size of its client area: the window itself, or what fills it below its menu bar.
class WindowPlace {
 public:
  // Both must outlive this object; `client` is `window` or its central widget.
  WindowPlace(QWidget& window, QWidget& client) : window_(window), client_(client) {}

  // Before the window is shown: its client area as it is drawn, or as much smaller as the menu bar
  // and the frame that the window system will most likely put around it ask for; in the middle of
  // the screen and a third of the way down.
  void OpenWithin();

  // Once the window is shown in its real frame: shrinks and moves it into the work area where it
  // sticks out. A size that the window system gave it is left.
  void FitFrame();

 private:
  QWidget& window_;
  QWidget& client_;
  QSize openedSize_;
};

}  // namespace app
