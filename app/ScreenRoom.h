// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QWidget;

namespace app {

// Gives a window that is not shown yet the size `wanted`, or as much smaller as it has to be to
// lie, with the frame that the window system will most likely put around it, within the part of its
// screen that no panel covers. In device-independent pixels.
void OpenWithinScreen(QWidget& window, QSize wanted);

// The same for a window that has a size of its own.
void OpenWithinScreen(QWidget& window);

// The same for a window that nothing else places: in the middle of that part.
void OpenInTheMiddle(QWidget& window, QSize wanted);

}  // namespace app
