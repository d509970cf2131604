// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include <QPainter>

#include "plot/Colours.h"
#include "plot/Numbers.h"
#include "plot/PanelDrawing.h"
#include "plot/Texts.h"

namespace plot {

using pages::Bar;
using pages::BarGroup;

namespace {

constexpr int kBarTextSize = 62;
constexpr int kLeastBarTextSize = 46;
constexpr double kBarTextLine = 78;
constexpr double kBelowPlot = 78;  // from the frame to the first line of text

// The room of one group, or of one bar of it.
struct Slot {
  double Left = 0;
  double Width = 0;

  double Centre() const { return Left + Width / 2; }
};

Slot ShareOf(const Slot& whole, std::size_t index, std::size_t count) {
  const double width = whole.Width / static_cast<double>(std::max<std::size_t>(count, 1));
  return {whole.Left + static_cast<double>(index) * width, width};
}

// A rectangle between two values, cut at the plot.
QRectF Between(const Slot& slot, double one, double other, const Axes& axes) {
  const double y1 = axes.At(0, std::clamp(std::max(one, other), axes.FromY, axes.ToY)).y();
  const double y2 = axes.At(0, std::clamp(std::min(one, other), axes.FromY, axes.ToY)).y();
  return {slot.Left, y1, slot.Width, y2 - y1};
}

void DrawNormal(const Canvas& canvas, const BarGroup& group, const Slot& slot, const Axes& axes) {
  if (!group.NormalMean) return;
  constexpr double kWidth = 7;
  const double mean = *group.NormalMean;
  const double deviation = group.NormalDeviation.value_or(0);
  canvas.Painter.setPen(Qt::NoPen);
  canvas.Painter.setBrush(NormalBandOf(canvas.Style));
  canvas.Painter.drawRect(Between(slot, mean - deviation, mean + deviation, axes));
  if (mean < axes.FromY || mean > axes.ToY) return;
  const double y = axes.At(0, mean).y();
  canvas.Painter.setPen(PlainLine(ColoursOf(canvas.Style).Normal, kWidth));
  canvas.Painter.drawLine(QPointF(slot.Left, y), {slot.Left + slot.Width, y});
}

void DrawDeviation(const Canvas& canvas, const Bar& bar, const Slot& slot, const Axes& axes) {
  if (!bar.Deviation) return;
  constexpr double kWidth = 8;
  constexpr double kHalfCap = 25;
  const double cap = std::min(kHalfCap, slot.Width / 4);
  const QRectF line = Between(slot, *bar.Value - *bar.Deviation, *bar.Value + *bar.Deviation, axes);
  canvas.Painter.setPen(PlainLine(ColoursOf(canvas.Style).Ink, kWidth));
  const double x = slot.Centre();
  canvas.Painter.drawLine(QPointF(x, line.top()), {x, line.bottom()});
  for (const double y : {line.top(), line.bottom()}) {
    // Where the plot ends before it, the deviation has no end to show.
    if (y <= axes.Plot.top() || y >= axes.Plot.bottom()) continue;
    canvas.Painter.drawLine(QPointF(x - cap, y), {x + cap, y});
  }
}

void DrawBar(const Canvas& canvas, const Bar& bar, const Slot& slot, const Axes& axes) {
  if (!bar.Value) return;
  constexpr double kShare = 0.56;
  constexpr double kMost = 220;
  constexpr double kBorder = 7;
  const double width = std::min(kMost, kShare * slot.Width);
  const Slot narrow{slot.Centre() - width / 2, width};
  canvas.Painter.setPen(LineOf(bar.Side, kBorder, canvas.Style));
  canvas.Painter.setBrush(BandOf(bar.Side, canvas.Style));
  canvas.Painter.drawRect(Between(narrow, 0, *bar.Value, axes));
  DrawDeviation(canvas, bar, narrow, axes);
}

// "1.23 ± 0.04", or as much of it as fits in a size that can be read.
QString NumberOf(const Bar& bar, int decimals, double room, const TextStyle& least) {
  if (!bar.Value) return QStringLiteral("–");
  QString value = NumberText(*bar.Value, decimals);
  if (!bar.Deviation) return value;
  const QString whole = value + QStringLiteral(" ± ") + NumberText(*bar.Deviation, decimals);
  return WidthOf(whole, least) <= room ? whole : value;
}

void SetFitted(const Canvas& canvas, const QPointF& base, const QString& text, double room,
               TextStyle style) {
  style = Fitted(style, text, room, kLeastBarTextSize);
  SetText(canvas.Painter, base, Align::Centre, Shortened(text, style, room), style);
}

void DrawBarTexts(const Canvas& canvas, const Bar& bar, const Slot& slot, double bottom,
                  int decimals) {
  constexpr double kApart = 20;
  const double room = slot.Width - kApart;
  const TextStyle least{Face::Regular, kLeastBarTextSize, ColourOf(bar.Side, canvas.Style)};
  TextStyle style = least;
  style.Size = kBarTextSize;
  SetFitted(canvas, {slot.Centre(), bottom + kBelowPlot}, NumberOf(bar, decimals, room, least),
            room, style);
  const QString count = QString::number(bar.Count);
  const QString named = QStringLiteral("n = ") + count;
  style.Colour = ColoursOf(canvas.Style).Quiet;
  SetFitted(canvas, {slot.Centre(), bottom + kBelowPlot + kBarTextLine},
            WidthOf(named, least) <= room ? named : count, room, style);
}

// The name of a group among others, or how far its sides differ.
void DrawGroupTexts(const Canvas& canvas, const BarGroup& group, const Slot& slot, double bottom,
                    bool isAlone) {
  constexpr double kApart = 20;
  constexpr std::size_t kLines = 3;
  const TextStyle style{isAlone ? Face::Regular : Face::Bold, isAlone ? kBarTextSize : 56,
                        isAlone ? ColoursOf(canvas.Style).Quiet : ColoursOf(canvas.Style).Ink};
  QString text = TextOf(group.Title);
  if (isAlone) {
    if (!group.Asymmetry) return;
    text = QStringLiteral("Asymmetry %1 %").arg(NumberText(*group.Asymmetry, 1));
  }
  double y = bottom + kBelowPlot + 2 * kBarTextLine;
  for (const QString& line : Wrapped(text, style, slot.Width - kApart, kLines)) {
    SetText(canvas.Painter, {slot.Centre(), y}, Align::Centre, line, style);
    y += kBarTextLine;
  }
}

}  // namespace

void DrawBarPanel(const Canvas& canvas, const PanelPlace& place, const pages::BarPanel& panel) {
  const Axes axes = AxesOf(place.Plot, 0, 1, 0, panel.Ordinate, std::nullopt);
  const int decimals = std::min(3, DecimalsOf(panel.Ordinate.Tick) + 1);
  const Slot plot{place.Plot.left(), place.Plot.width()};
  const std::size_t count = panel.Groups.size();
  DrawGrid(canvas, axes);
  for (std::size_t i = 0; i < count; ++i) {
    const BarGroup& group = panel.Groups[i];
    const Slot slot = ShareOf(plot, i, count);
    DrawNormal(canvas, group, slot, axes);
    for (std::size_t k = 0; k < group.Bars.size(); ++k) {
      const Slot room = ShareOf(slot, k, group.Bars.size());
      DrawBar(canvas, group.Bars[k], room, axes);
      DrawBarTexts(canvas, group.Bars[k], room, place.Plot.bottom(), decimals);
    }
    DrawGroupTexts(canvas, group, slot, place.Plot.bottom(), count == 1);
  }
  DrawFrame(canvas, place, axes, {panel.Title, panel.Unit, {}, {}, panel.Ordinate.IsWidened});
  DrawNotes(canvas, place.Plot, panel.Notes, panel.Groups.empty());
}

}  // namespace plot
