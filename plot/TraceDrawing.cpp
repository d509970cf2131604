// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include <QPainter>

#include "plot/Colours.h"
#include "plot/Numbers.h"
#include "plot/PanelDrawing.h"

namespace plot {

using modVantrel::GaitEventType;

namespace {

constexpr double kTraceWidth = 7;
constexpr double kEventWidth = 6;

// Strikes solid, offs dashed, others dotted.
QPen LineOfEvent(const pages::TimedEvent& event, const DrawingStyle& style) {
  QPen pen = SolidLineOf(event.Side, kEventWidth, style);
  if (event.Type == GaitEventType::FootOff) pen.setDashPattern({5, 3});
  if (event.Type == GaitEventType::Other) pen.setDashPattern({1, 3});
  return pen;
}

void DrawEvents(const Canvas& canvas, const pages::Trace& trace, const Axes& axes) {
  for (const pages::TimedEvent& event : trace.Events) {
    const bool isSeen = event.Time >= axes.FromX && event.Time <= axes.ToX;
    if (!isSeen) continue;  // nor is one whose time is no number
    const double x = axes.At(event.Time, axes.FromY).x();
    canvas.Painter.setPen(LineOfEvent(event, canvas.Style));
    canvas.Painter.drawLine(QPointF(x, axes.Plot.top()), {x, axes.Plot.bottom()});
  }
}

void DrawTrace(const Canvas& canvas, const pages::TracePanel& panel,
               const std::vector<float>& times, const Axes& axes) {
  std::vector<std::optional<QPointF>> points(std::min(times.size(), panel.Values.size()));
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (panel.Values[i]) points[i] = axes.At(double{times[i]}, double{*panel.Values[i]});
  }
  DrawLineWithGaps(canvas.Painter, points, axes.Plot,
                   PlainLine(ColoursOf(canvas.Style).Ink, kTraceWidth));
}

}  // namespace

void DrawTracePanel(const Canvas& canvas, const PanelPlace& place, const pages::TracePanel& panel,
                    const pages::Trace& trace, const std::optional<PanelView>& view) {
  constexpr int kTicks = 12;
  constexpr double kWhole = 100;
  const double start = trace.Times.empty() ? 0 : double{trace.Times.front()};
  const double end = trace.Times.empty() ? 1 : double{trace.Times.back()};
  auto seen = view;
  if (seen) {
    seen->LowPercent = start + view->LowPercent / kWhole * (end - start);
    seen->HighPercent = start + view->HighPercent / kWhole * (end - start);
  }
  const Axes axes =
      AxesOf(place.Plot, start, end, StepFor(end - start, kTicks), panel.Ordinate, seen);
  DrawGrid(canvas, axes);
  DrawEvents(canvas, trace, axes);
  DrawTrace(canvas, panel, trace.Times, axes);
  DrawFrame(canvas, place, axes, {panel.Title, panel.Unit, {}, {}, panel.Ordinate.IsWidened});
  const bool isEmpty = std::ranges::none_of(panel.Values, [](auto value) { return bool(value); });
  DrawNotes(canvas, place.Plot, panel.Notes, isEmpty);
}

}  // namespace plot
