// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QPointF>
#include <QRectF>

#include "pages/Page.h"
#include "plot/PageDrawing.h"

class QPainter;
class QPen;

// What all panels have in common: title, frame, grid, numbers, lines and notes. Lengths are tenths
// of a point.
namespace plot {

struct Canvas {
  QPainter& Painter;
  const DrawingStyle& Style;
};

struct PanelPlace {
  QRectF Cell;  // with its texts
  QRectF Plot;
};

// Where values stand in a plot.
struct Axes {
  QRectF Plot;
  double FromX = 0;
  double ToX = 0;
  double FromY = 0;
  double ToY = 0;
  double StepX = 0;  // between ticks; 0 for an axis without
  double StepY = 0;

  QPointF At(double x, double y) const;
};

// The axes of a plot over the whole of both ranges, or of the part that is seen of them. Nothing is
// divided by an empty range. A wide range has some of its ticks alone, so that they stay apart.
Axes AxesOf(const QRectF& plot, double fromX, double toX, double stepX, const pages::Range& range,
            const std::optional<PanelView>& view);

struct FrameTexts {
  std::string Title;
  std::string Unit;
  std::string Down;
  std::string Up;
  bool IsWidened = false;  // the numbers of the ordinate are bold
};

// Behind the curves: ticks, and the line of zero.
void DrawGrid(const Canvas& canvas, const Axes& axes);

// A line through `points`, cut at the plot, that leaves out those that are missing; what stands
// alone between two of them is a dot.
void DrawLineWithGaps(QPainter& painter, const std::vector<std::optional<QPointF>>& points,
                      const QRectF& plot, const QPen& pen);

// In front of the curves: frame and texts.
void DrawFrame(const Canvas& canvas, const PanelPlace& place, const Axes& axes,
               const FrameTexts& texts);

// Notes in the middle of an empty plot, at the lower edge of another.
void DrawNotes(const Canvas& canvas, const QRectF& plot, const std::vector<std::string>& notes,
               bool isEmpty);

}  // namespace plot
