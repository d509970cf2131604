// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/HeadAndFoot.h"

#include <algorithm>
#include <set>
#include <variant>

#include <QPainter>
#include <QStringList>

#include "plot/Colours.h"
#include "plot/Texts.h"
#include "plot/TrialNames.h"

namespace plot {

using modVantrel::GaitSide;

namespace {

constexpr double kBetweenTexts = 80;  // between texts of one line
constexpr double kFirstLine = 110;
constexpr double kSecondLine = 210;
constexpr double kNamesLine = 300;
constexpr double kNamesPitch = 88;  // from one line of names to the next
constexpr int kHeadTextSize = 76;
constexpr int kSmallSize = 66;

bool HasCurves(const pages::Page& page) {
  return std::ranges::any_of(page.Panels, [](const pages::Panel& panel) {
    return std::holds_alternative<pages::CurvePanel>(panel);
  });
}

bool HasNormal(const pages::CurvePanel& panel) { return panel.Normal.has_value(); }
bool HasNormal(const pages::TracePanel& /*panel*/) { return false; }
bool HasNormal(const pages::BarPanel& panel) {
  return std::ranges::any_of(panel.Groups,
                             [](const auto& group) { return bool(group.NormalMean); });
}

bool HasNormals(const pages::Page& page) {
  return std::ranges::any_of(page.Panels, [](const pages::Panel& panel) {
    return std::visit([](const auto& any) { return HasNormal(any); }, panel);
  });
}

// A sample of a line or a band and what it stands for.
struct LegendItem {
  QString Text;
  QPen Line;
  QColor Band;
};

QString SideText(const char* name, std::int64_t strides) {
  return QStringLiteral("%1, %2 %3")
      .arg(QString::fromLatin1(name), QString::number(strides),
           strides == 1 ? QStringLiteral("stride") : QStringLiteral("strides"));
}

std::vector<LegendItem> LegendOf(const pages::PageSet& set, const pages::Page& page,
                                 const DrawingStyle& style) {
  const bool isMeans = HasCurves(page) && style.Curves == Shown::Means;
  const double width = isMeans ? 15 : 9;
  const auto bandOf = [&](GaitSide side) {
    return isMeans || !HasCurves(page) ? BandOf(side, style) : QColor(Qt::transparent);
  };
  const std::int64_t left = page.OverTime ? page.OverTime->LeftStrides : set.LeftStrides;
  const std::int64_t right = page.OverTime ? page.OverTime->RightStrides : set.RightStrides;
  std::vector<LegendItem> items = {
      {SideText("Left", left), LineOf(GaitSide::Left, width, style), bandOf(GaitSide::Left)},
      {SideText("Right", right), LineOf(GaitSide::Right, width, style), bandOf(GaitSide::Right)}};
  if (page.OverTime) {
    for (LegendItem& item : items) {
      item = {item.Text, PlainLine(item.Line.color(), width), QColor(Qt::transparent)};
    }
  }
  if (HasNormals(page)) {
    items.push_back(
        {QStringLiteral("Normal"), PlainLine(ColoursOf(style).Normal, 7), NormalBandOf(style)});
  }
  return items;
}

// Draws the legend so that it ends at `end`; answers with where it begins.
double DrawLegend(const Canvas& canvas, const std::vector<LegendItem>& items, const QPointF& end) {
  constexpr double kSample = 240;
  constexpr double kSampleHeight = 60;
  constexpr double kGap = 30;
  const TextStyle style{Face::Regular, kHeadTextSize, ColoursOf(canvas.Style).Ink};
  double x = end.x();
  std::for_each(items.rbegin(), items.rend(), [&](const LegendItem& item) {
    SetText(canvas.Painter, {x, end.y()}, Align::Right, item.Text, style);
    x -= WidthOf(item.Text, style) + kGap + kSample;
    const QRectF sample(x, end.y() - kSampleHeight, kSample, kSampleHeight);
    if (item.Band.alpha() > 0) canvas.Painter.fillRect(sample, item.Band);
    canvas.Painter.setPen(item.Line);
    canvas.Painter.drawLine(QPointF(sample.left(), sample.center().y()),
                            {sample.right(), sample.center().y()});
    x -= kBetweenTexts;
  });
  return x;
}

// "100 Hz", or all rates of the files.
QString RateText(const std::vector<pages::PageFile>& files) {
  std::set<double> rates;
  for (const pages::PageFile& file : files) rates.insert(file.Rate);
  QStringList texts;
  for (const double rate : rates) texts << QString::number(rate, 'g', 6);
  return texts.isEmpty() ? QString() : texts.join(QStringLiteral(", ")) + QStringLiteral(" Hz");
}

// The files that a page shows.
std::vector<pages::PageFile> FilesOf(const pages::PageSet& set, const pages::Page& page) {
  if (!page.OverTime || page.OverTime->File >= set.Files.size()) return set.Files;
  return {set.Files[page.OverTime->File]};
}

// "2011-03-04", or the first and the last of several days.
QString DateText(const std::vector<pages::PageFile>& files) {
  std::set<std::string> dates;
  for (const pages::PageFile& file : files) {
    if (!file.Date.empty()) dates.insert(file.Date);
  }
  if (dates.empty()) return {};
  const QString first = TextOf(*dates.begin());
  const QString named =
      files.size() == 1 ? QStringLiteral("File of ") : QStringLiteral("Files of ");
  if (dates.size() == 1) return named + first;
  return named + first + QStringLiteral(" to ") + TextOf(*dates.rbegin());
}

void DrawTitles(const Canvas& canvas, const pages::PageSet& set, const pages::Page& page,
                const QRectF& head) {
  const QColor ink = ColoursOf(canvas.Style).Ink;
  const double y = head.top() + kFirstLine;
  const TextStyle title{Face::Bold, 124, ink};
  const TextStyle small{Face::Bold, 96, ink};
  double room = head.width();
  if (!set.Title.empty()) {
    const QString right = Shortened(TextOf(page.Title), small, head.width() / 2);
    SetText(canvas.Painter, {head.right(), y}, Align::Right, right, small);
    room -= WidthOf(right, small) + kBetweenTexts;
  }
  const QString left = TextOf(set.Title.empty() ? page.Title : set.Title);
  const TextStyle fitted = Fitted(title, left, room, small.Size);
  SetText(canvas.Painter, {head.left(), y}, Align::Left, Shortened(left, fitted, room), fitted);
}

void DrawRule(const Canvas& canvas, const QRectF& part, double y) {
  canvas.Painter.setPen(PlainLine(ColoursOf(canvas.Style).Frame, 4));
  canvas.Painter.drawLine(QPointF(part.left(), y), {part.right(), y});
}

bool HasBarsOfBothSides(const pages::Page& page) {
  for (const pages::Panel& panel : page.Panels) {
    const auto* bars = std::get_if<pages::BarPanel>(&panel);
    if (bars == nullptr) continue;
    for (const pages::BarGroup& group : bars->Groups) {
      for (const pages::Bar& bar : group.Bars) {
        if (bar.Side == GaitSide::None) return true;
      }
    }
  }
  return false;
}

QString CaptionText(const pages::Page& page) {
  if (HasCurves(page)) {
    return QStringLiteral(
        "Abscissa: percent of the stride. Vertical line: foot off; ticks at the upper edge: "
        "opposite foot off and strike.");
  }
  if (page.OverTime) {
    return QStringLiteral(
        "Abscissa: seconds of the trial. Vertical lines: foot strikes, dashed: foot offs, dotted: "
        "other events.");
  }
  QString text = QStringLiteral("n: strides. Lines on bars: one standard deviation.");
  if (HasNormals(page)) text += QStringLiteral(" Grey band: normal.");
  if (HasBarsOfBothSides(page)) text += QStringLiteral(" Grey bar: both sides together.");
  return text;
}

}  // namespace

void DrawHead(const Canvas& canvas, const pages::PageSet& set, const pages::Page& page,
              const QRectF& head) {
  const Colours colours = ColoursOf(canvas.Style);
  DrawTitles(canvas, set, page, head);
  const double start = DrawLegend(canvas, LegendOf(set, page, canvas.Style),
                                  {head.right(), head.top() + kSecondLine});
  const TextStyle text{Face::Regular, kHeadTextSize, colours.Ink};
  SetText(canvas.Painter, {head.left(), head.top() + kSecondLine}, Align::Left,
          Shortened(TextOf(set.Subject), text, start - head.left()), text);

  const auto files = FilesOf(set, page);
  const TextStyle small{Face::Regular, kSmallSize, colours.Quiet};
  double y = head.top() + kNamesLine;
  const QString rate = RateText(files);
  SetText(canvas.Painter, {head.right(), y}, Align::Right, rate, small);
  const double room = head.width() - WidthOf(rate, small) - kBetweenTexts;
  for (const QString& line : TrialNameLines(files, small, room)) {
    SetText(canvas.Painter, {head.left(), y}, Align::Left, line, small);
    y += kNamesPitch;
  }
  DrawRule(canvas, head, head.bottom());
}

void DrawCaption(const Canvas& canvas, const pages::Page& page, const QRectF& caption) {
  constexpr int kSize = 62;
  constexpr int kLeastSize = 40;
  constexpr double kAboveFoot = 40;
  const TextStyle style{Face::Oblique, kSize, ColoursOf(canvas.Style).Quiet};
  const QString text = CaptionText(page);
  const TextStyle fitted = Fitted(style, text, caption.width(), kLeastSize);
  SetText(canvas.Painter, {caption.left(), caption.bottom() - kAboveFoot}, Align::Left,
          Shortened(text, fitted, caption.width()), fitted);
}

void DrawFoot(const Canvas& canvas, const pages::PageSet& set, std::size_t index,
              const QRectF& foot) {
  const TextStyle style{Face::Regular, kSmallSize, ColoursOf(canvas.Style).Quiet};
  const double y = foot.bottom() - 20;
  const double room = foot.width() / 3 - kBetweenTexts;
  DrawRule(canvas, foot, foot.top() + 20);
  SetText(canvas.Painter, {foot.left(), y}, Align::Left,
          Shortened(TextOf(set.Program), style, room), style);
  SetText(canvas.Painter, {foot.center().x(), y}, Align::Centre,
          Shortened(DateText(FilesOf(set, set.Pages[index])), style, room), style);
  SetText(canvas.Painter, {foot.right(), y}, Align::Right,
          QStringLiteral("Page %1 of %2").arg(index + 1).arg(set.Pages.size()), style);
}

}  // namespace plot
