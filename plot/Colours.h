// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPen>

#include "c3d/GaitEvents.h"
#include "plot/PageDrawing.h"

// What the parts of a page are drawn with. Widths are tenths of a point.
namespace plot {

struct Colours {
  QColor Ground;
  QColor Ink;    // titles
  QColor Quiet;  // numbers, notes, foot
  QColor Frame;
  QColor Grid;
  QColor Zero;
  QColor Normal;
};

Colours ColoursOf(const DrawingStyle& style);
QColor ColourOf(modVantrel::GaitSide side, const DrawingStyle& style);

// A band of the side's colour, at a quarter of its strength.
QColor BandOf(modVantrel::GaitSide side, const DrawingStyle& style);
QColor NormalBandOf(const DrawingStyle& style);

// A line of a side. Where strides are drawn, and without colours, the right one is dashed.
QPen LineOf(modVantrel::GaitSide side, double width, const DrawingStyle& style);
// As LineOf, of a curve that another one is lifted in front of.
QPen PaleLineOf(modVantrel::GaitSide side, double width, const DrawingStyle& style);
// Never dashed: marks, ticks and borders of bars.
QPen SolidLineOf(modVantrel::GaitSide side, double width, const DrawingStyle& style);
QPen PlainLine(const QColor& colour, double width);

}  // namespace plot
