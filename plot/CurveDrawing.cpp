// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>

#include <QPainter>

#include "plot/Colours.h"
#include "plot/Cutting.h"
#include "plot/Numbers.h"
#include "plot/PanelDrawing.h"
#include "plot/Texts.h"

namespace plot {

using modVantrel::GaitSide;
using pages::CurvePanel;
using pages::MeanPoints;
using visit::kInstants;

namespace {

constexpr double kStrideWidth = 6;
constexpr double kMeanWidth = 15;
constexpr double kLiftedWidth = 17;
constexpr double kNormalWidth = 7;
constexpr double kMarkWidth = 6;
constexpr double kMarkLength = 36;  // of the ticks at the upper edge
constexpr std::array kSides = {GaitSide::Left, GaitSide::Right};

template <typename Values>
std::vector<std::optional<QPointF>> PointsOf(const Values& values, const Axes& axes) {
  std::vector<std::optional<QPointF>> points(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!values[i]) continue;
    points[i] = axes.At(static_cast<double>(visit::PercentOf(i)), double{*values[i]});
  }
  return points;
}

template <typename Values>
void DrawLine(QPainter& painter, const Values& values, const Axes& axes, const QPen& pen) {
  DrawLineWithGaps(painter, PointsOf(values, axes), axes.Plot, pen);
}

// One standard deviation around a mean, wherever there are both.
void DrawBand(QPainter& painter, const MeanPoints& mean, const MeanPoints& deviation,
              const Axes& axes, const QColor& colour) {
  MeanPoints upper{};
  MeanPoints lower{};
  for (std::size_t i = 0; i < kInstants; ++i) {
    if (!mean[i] || !deviation[i]) continue;
    upper[i] = *mean[i] + *deviation[i];
    lower[i] = *mean[i] - *deviation[i];
  }
  const auto above = PiecesOf(PointsOf(upper, axes));
  const auto below = PiecesOf(PointsOf(lower, axes));
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  for (std::size_t i = 0; i < above.size(); ++i) {
    QPolygonF area = above[i];
    std::for_each(below[i].rbegin(), below[i].rend(), [&](const QPointF& p) { area << p; });
    const QPolygonF cut = CutArea(area, axes.Plot);
    if (cut.size() > 2) painter.drawPolygon(cut);
  }
}

void DrawNormal(const Canvas& canvas, const CurvePanel& panel, const Axes& axes) {
  if (!panel.Normal) return;
  const auto& [mean, deviation] = *panel.Normal;
  DrawBand(canvas.Painter, mean, deviation, axes, NormalBandOf(canvas.Style));
  DrawLine(canvas.Painter, mean, axes, PlainLine(ColoursOf(canvas.Style).Normal, kNormalWidth));
}

// Marks of the right stand over those of the left: dashed and shorter, they leave both to be seen
// where they fall together.
QPen LineOfMark(const pages::Mark& mark, bool isLine, const DrawingStyle& style) {
  QPen pen = SolidLineOf(mark.Side, kMarkWidth, style);
  if (isLine && mark.Side == GaitSide::Right) pen.setDashPattern({6, 6});
  return pen;
}

void DrawMark(const Canvas& canvas, const pages::Mark& mark, const Axes& axes) {
  if (mark.Percent < axes.FromX || mark.Percent > axes.ToX) return;
  const double x = axes.At(mark.Percent, axes.FromY).x();
  const bool isLine = mark.Kind == pages::MarkKind::FootOff;
  const double tick = mark.Side == GaitSide::Right ? kMarkLength / 2 : kMarkLength;
  const double end = axes.Plot.top() + (isLine ? axes.Plot.height() : tick);
  canvas.Painter.setPen(LineOfMark(mark, isLine, canvas.Style));
  canvas.Painter.drawLine(QPointF(x, axes.Plot.top()), {x, end});
}

void DrawMarks(const Canvas& canvas, const CurvePanel& panel, const Axes& axes) {
  for (const GaitSide side : kSides) {
    for (const pages::Mark& mark : panel.Marks) {
      if (mark.Side == side) DrawMark(canvas, mark, axes);
    }
  }
}

// The width of a stride's line; no more than a pixel where that is asked for: a painter of pixels
// then takes a quarter of the time.
double StrideWidth(const Canvas& canvas) {
  constexpr double kNearly1 = 0.999;
  if (!canvas.Style.IsQuick) return kStrideWidth;
  return std::min(kStrideWidth, kNearly1 / canvas.Painter.deviceTransform().m11());
}

void DrawStrides(const Canvas& canvas, const CurvePanel& panel, const Axes& axes) {
  const bool isPale = canvas.Style.Lifted.has_value();
  const double width = StrideWidth(canvas);
  for (const pages::Curve& curve : panel.Curves) {
    const GaitSide side = curve.Id.Side;
    if (curve.Id == canvas.Style.Lifted) continue;
    DrawLine(canvas.Painter, curve.Values, axes,
             isPale ? PaleLineOf(side, width, canvas.Style) : LineOf(side, width, canvas.Style));
  }
}

void DrawMeans(const Canvas& canvas, const CurvePanel& panel, const Axes& axes) {
  for (const pages::MeanCurve& mean : panel.Means) {
    DrawBand(canvas.Painter, mean.Mean, mean.Deviation, axes, BandOf(mean.Side, canvas.Style));
  }
  const bool isPale = canvas.Style.Lifted.has_value();
  for (const pages::MeanCurve& mean : panel.Means) {
    DrawLine(canvas.Painter, mean.Mean, axes,
             isPale ? PaleLineOf(mean.Side, kMeanWidth, canvas.Style)
                    : LineOf(mean.Side, kMeanWidth, canvas.Style));
  }
}

void DrawLifted(const Canvas& canvas, const CurvePanel& panel, const Axes& axes) {
  if (!canvas.Style.Lifted) return;
  for (const pages::Curve& curve : panel.Curves) {
    if (curve.Id != *canvas.Style.Lifted) continue;
    DrawLine(canvas.Painter, curve.Values, axes, LineOf(curve.Id.Side, kLiftedWidth, canvas.Style));
  }
}

// The mean deviation of each side, in the upper corner at the right.
void DrawCornerNumbers(const Canvas& canvas, const CurvePanel& panel, const QRectF& plot) {
  constexpr int kSize = 62;
  constexpr int kDecimals = 2;
  constexpr double kLine = 76;
  double y = plot.top() + kMarkLength;
  for (const GaitSide side : kSides) {
    for (const pages::SideNumber& number : panel.Deviations) {
      if (number.Side != side || !number.Value) continue;
      y += kLine;
      const QString name = side == GaitSide::Left ? QStringLiteral("L ") : QStringLiteral("R ");
      SetTextOnPlate(canvas.Painter, {plot.right() - kMarkLength, y}, Align::Right,
                     name + NumberText(*number.Value, kDecimals),
                     {Face::Bold, kSize, ColourOf(side, canvas.Style)},
                     ColoursOf(canvas.Style).Ground);
    }
  }
}

bool IsEmpty(const CurvePanel& panel) { return panel.Curves.empty() && panel.Means.empty(); }

}  // namespace

void DrawCurvePanel(const Canvas& canvas, const PanelPlace& place, const CurvePanel& panel,
                    const std::optional<PanelView>& view) {
  constexpr double kWhole = 100;
  constexpr double kStep = 20;
  const Axes axes = AxesOf(place.Plot, 0, kWhole, kStep, panel.Ordinate, view);
  DrawNormal(canvas, panel, axes);
  DrawGrid(canvas, axes);
  DrawMarks(canvas, panel, axes);
  if (canvas.Style.Curves == Shown::Strides) {
    DrawStrides(canvas, panel, axes);
  } else {
    DrawMeans(canvas, panel, axes);
  }
  DrawLifted(canvas, panel, axes);
  DrawFrame(canvas, place, axes,
            {panel.Title, panel.Unit, panel.Down, panel.Up, panel.Ordinate.IsWidened});
  DrawCornerNumbers(canvas, panel, place.Plot);
  DrawNotes(canvas, place.Plot, panel.Notes, IsEmpty(panel));
}

}  // namespace plot
