// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/PanelFrame.h"

#include <algorithm>

#include <QPainter>

#include "plot/Colours.h"
#include "plot/Cutting.h"
#include "plot/Numbers.h"
#include "plot/Texts.h"

namespace plot {

namespace {

constexpr int kTitleSize = 78;
constexpr int kUnitSize = 62;
constexpr int kNumberSize = 58;
constexpr int kWordSize = 58;
constexpr int kNoteSize = 62;
constexpr int kLeastNumberSize = 40;
constexpr double kTick = 18;
constexpr double kAboveFrame = 46;  // from the frame to the line of the title

double SpanOr1(double from, double to) { return to > from ? to - from : 1; }

void DrawTitle(const Canvas& canvas, const PanelPlace& place, const FrameTexts& texts) {
  constexpr double kBetween = 40;
  const Colours colours = ColoursOf(canvas.Style);
  const TextStyle unitStyle{Face::Regular, kUnitSize, colours.Quiet};
  const double line = place.Plot.top() - kAboveFrame;
  const QString unit = Shortened(TextOf(texts.Unit), unitStyle, place.Plot.width() / 2);
  SetText(canvas.Painter, {place.Plot.right(), line}, Align::Right, unit, unitStyle);
  const double end = place.Plot.right() - kBetween - WidthOf(unit, unitStyle);
  const QString whole = TextOf(texts.Title);
  TextStyle style{Face::Bold, kTitleSize, colours.Ink};
  // A long one begins above the numbers, not above the plot.
  const double start =
      std::clamp(end - WidthOf(whole, style), place.Cell.left(), place.Plot.left());
  style = Fitted(style, whole, end - start, kUnitSize);
  SetText(canvas.Painter, {start, line}, Align::Left, Shortened(whole, style, end - start), style);
}

// The direction words, beside the ends of the ordinate.
void DrawWords(const Canvas& canvas, const PanelPlace& place, const FrameTexts& texts) {
  const TextStyle style{Face::Oblique, kWordSize, ColoursOf(canvas.Style).Quiet};
  constexpr double kBetween = 20;
  const double room = (place.Plot.height() - kBetween) / 2;
  const double x = place.Cell.left() + kWordSize;
  SetTextUpwards(canvas.Painter, {x, place.Plot.bottom()}, Align::Left,
                 Shortened(TextOf(texts.Down), style, room), style);
  SetTextUpwards(canvas.Painter, {x, place.Plot.top()}, Align::Right,
                 Shortened(TextOf(texts.Up), style, room), style);
}

void DrawOrdinateNumbers(const Canvas& canvas, const PanelPlace& place, const Axes& axes,
                         bool isBold) {
  constexpr double kWordColumn = 80;
  constexpr double kMiddleOfDigits = 0.36;
  constexpr double kApart = 1.2;  // of the size, so that numbers stand clear of each other
  const double room = place.Plot.left() - 2 * kTick - place.Cell.left() - kWordColumn;
  const int decimals = DecimalsOf(axes.StepY);
  double lowest = place.Cell.bottom() + kNumberSize;
  for (const double tick : TicksOf(axes.FromY, axes.ToY, axes.StepY)) {
    const double y = axes.At(axes.FromX, tick).y();
    canvas.Painter.setPen(PlainLine(ColoursOf(canvas.Style).Frame, 4));
    canvas.Painter.drawLine(QPointF(place.Plot.left() - kTick, y), {place.Plot.left(), y});
    if (y > lowest - kApart * kNumberSize) continue;
    lowest = y;
    const QString number = NumberText(tick, decimals);
    const TextStyle style =
        Fitted({isBold ? Face::Bold : Face::Regular, kNumberSize, ColoursOf(canvas.Style).Quiet},
               number, room, kLeastNumberSize);
    SetText(canvas.Painter, {place.Plot.left() - 1.6 * kTick, y + kMiddleOfDigits * style.Size},
            Align::Right, Shortened(number, style, room), style);
  }
}

void DrawAbscissaNumbers(const Canvas& canvas, const Axes& axes) {
  constexpr double kApart = 25;
  const TextStyle style{Face::Regular, kNumberSize, ColoursOf(canvas.Style).Quiet};
  const int decimals = DecimalsOf(axes.StepX);
  const double bottom = axes.Plot.bottom();
  double free = axes.Plot.left() - axes.Plot.width();
  for (const double tick : TicksOf(axes.FromX, axes.ToX, axes.StepX)) {
    const double x = axes.At(tick, axes.FromY).x();
    canvas.Painter.setPen(PlainLine(ColoursOf(canvas.Style).Frame, 4));
    canvas.Painter.drawLine(QPointF(x, bottom), {x, bottom + kTick});
    const QString number = NumberText(tick, decimals);
    const double half = WidthOf(number, style) / 2;
    if (x - half < free) continue;
    free = x + half + kApart;
    SetText(canvas.Painter, {x, bottom + kTick + kNumberSize}, Align::Centre, number, style);
  }
}

}  // namespace

QPointF Axes::At(double x, double y) const {
  return {Plot.left() + (x - FromX) / SpanOr1(FromX, ToX) * Plot.width(),
          Plot.bottom() - (y - FromY) / SpanOr1(FromY, ToY) * Plot.height()};
}

Axes AxesOf(const QRectF& plot, double fromX, double toX, double stepX, const pages::Range& range,
            const std::optional<PanelView>& view) {
  constexpr int kTicks = 5;
  if (!view) {
    const double stepY = ThinnedTick(range.Low, range.High, range.Tick);
    return {plot, fromX, toX, range.Low, range.High, stepX, stepY};
  }
  return {plot,
          view->LowPercent,
          view->HighPercent,
          view->Low,
          view->High,
          std::min(stepX, StepFor(view->HighPercent - view->LowPercent, kTicks)),
          StepFor(view->High - view->Low, kTicks)};
}

void DrawGrid(const Canvas& canvas, const Axes& axes) {
  constexpr double kGridWidth = 3;
  constexpr double kZeroWidth = 4;
  const Colours colours = ColoursOf(canvas.Style);
  const auto across = [&](double y) {
    canvas.Painter.drawLine(axes.At(axes.FromX, y), axes.At(axes.ToX, y));
  };
  canvas.Painter.setPen(PlainLine(colours.Grid, kGridWidth));
  for (const double tick : TicksOf(axes.FromY, axes.ToY, axes.StepY)) {
    if (tick > axes.FromY && tick < axes.ToY) across(tick);
  }
  canvas.Painter.setPen(PlainLine(colours.Zero, kZeroWidth));
  if (axes.FromY < 0 && axes.ToY > 0) across(0);
}

void DrawLineWithGaps(QPainter& painter, const std::vector<std::optional<QPointF>>& points,
                      const QRectF& plot, const QPen& pen) {
  for (const QPolygonF& piece : PiecesOf(points)) {
    for (const QPolygonF& cut : CutLine(piece, plot)) {
      const bool isDot = cut.size() == 1;
      painter.setPen(isDot ? QPen(Qt::NoPen) : pen);
      painter.setBrush(isDot ? QBrush(pen.color()) : QBrush(Qt::NoBrush));
      if (isDot) {
        painter.drawEllipse(cut[0], pen.widthF(), pen.widthF());
      } else {
        painter.drawPolyline(cut);
      }
    }
  }
}

void DrawFrame(const Canvas& canvas, const PanelPlace& place, const Axes& axes,
               const FrameTexts& texts) {
  constexpr double kFrameWidth = 5;
  canvas.Painter.setBrush(Qt::NoBrush);
  canvas.Painter.setPen(PlainLine(ColoursOf(canvas.Style).Frame, kFrameWidth));
  canvas.Painter.drawRect(place.Plot);
  DrawTitle(canvas, place, texts);
  DrawWords(canvas, place, texts);
  DrawOrdinateNumbers(canvas, place, axes, texts.IsWidened);
  DrawAbscissaNumbers(canvas, axes);
}

void DrawNotes(const Canvas& canvas, const QRectF& plot, const std::vector<std::string>& notes,
               bool isEmpty) {
  constexpr double kLine = 78;
  constexpr double kInside = 30;
  const TextStyle style{Face::Oblique, kNoteSize, ColoursOf(canvas.Style).Quiet};
  const auto room = static_cast<std::size_t>(std::max(0.0, (plot.height() - kInside) / kLine));
  std::vector<QString> lines;
  for (const std::string& note : notes) {
    constexpr std::size_t kLinesOfANote = 3;
    const auto wrapped = Wrapped(TextOf(note), style, plot.width() - 2 * kInside, kLinesOfANote);
    lines.insert(lines.end(), wrapped.begin(), wrapped.end());
  }
  if (lines.size() > room) lines.resize(room);
  const double height = kLine * static_cast<double>(lines.size());
  double y = isEmpty ? plot.center().y() - height / 2 : plot.bottom() - height - kInside / 2;
  for (const QString& line : lines) {
    y += kLine;
    SetTextOnPlate(canvas.Painter, {plot.center().x(), y - (kLine - kNoteSize)}, Align::Centre,
                   line, style, ColoursOf(canvas.Style).Ground);
  }
}

}  // namespace plot
