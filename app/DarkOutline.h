// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>
#include <QRect>

class QPainter;

namespace app {

// Whether these are the colours of a dark desktop.
bool AreDark(const QPalette& colours);

// Frames a box of a control where the colours are dark: common styles darken the ground for their
// frames, which leaves nothing to be seen there. In light colours it paints nothing.
void OutlineInTheDark(QPainter& painter, const QRect& box, const QPalette& colours);

}  // namespace app
