// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>

#include "pages/Page.h"
#include "plot/PageDrawing.h"

// Where things stand on a sheet in tenths of a point. Every sheet is laid out as one of the area of
// A4, or of a smaller one where texts stand enlarged on it, whatever its own units are; what is
// drawn in them is scaled.
namespace plot {

// The units of `sheet` in a tenth of a point.
double ScaleOf(const QRectF& sheet, double enlarged = 1);

// The sheet from its upper left corner, in tenths of a point.
QRectF LaidOut(const QRectF& sheet, double enlarged = 1);

// The strip between panels and foot, in which a line says how to read the panels.
QRectF CaptionOf(const PageGeometry& layout);

}  // namespace plot
