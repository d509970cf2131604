// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include "app/FormLayout.h"

namespace app {

// The size that the form opens with where `room` is left for it by panels, its frame and its menus:
// as it is drawn, or as `wanted`, or as much smaller as it has to be. A smaller height that would
// leave the tree too few lines is passed over for one at which the resize rule leaves the tree as
// it is drawn.
QSize FormSizeWithin(QSize room, QSize wanted = kDesignSize);

// Where the top left corner of a form goes: centred from left to right and a third of the way down.
// Halves and thirds are cut towards zero, also where the form is larger than the screen.
QPoint FormPosition(QSize screen, QSize form);

// The place nearest to that of `frame`, a window with its title bar, where it lies within
// `available`, the part of the screen that no panel covers. A frame that is too large keeps its top
// left corner, by which a window is moved.
QPoint NearestPlaceInside(const QRect& available, const QRect& frame);

}  // namespace app
