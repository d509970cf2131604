// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <limits>

#include <QPainter>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Recording.h"
#include "SamplePages.h"
#include "plot/PageDrawing.h"
#include "plot/PageFiles.h"

// What stands in a panel besides curves, and where.
namespace {

using plot::DrawingStyle;
using plot_tests::DrawnArea;
using plot_tests::DrawnLine;
using plot_tests::DrawnText;
using plot_tests::kA4;
using plot_tests::kLeft;
using plot_tests::kRight;
using plot_tests::Record;
using plot_tests::Recording;
using plot_tests::SamplePages;
using testing::Contains;
using testing::IsEmpty;
using testing::SizeIs;

const QColor kNormal(0xA0A0A0);
constexpr double kNearly = 0.01;

// A panel of the sample pages as it is drawn alone.
struct Drawn {
  Recording Parts;
  QRectF Plot;

  double X(double share) const { return Plot.left() + share * Plot.width(); }
  double Y(double share) const { return Plot.bottom() - share * Plot.height(); }
};

Drawn PanelOf(const pages::PageSet& set, std::size_t page, std::size_t panel,
              const DrawingStyle& style = {}) {
  const auto geometry = plot::GeometryOf(set.Pages.at(page), kA4);
  return {Record([&](QPainter& painter) {
            plot::DrawPanel(painter, set, page, panel, geometry, style, std::nullopt);
          }),
          geometry.Plots.at(panel)};
}

bool IsNear(double one, double other) { return std::abs(one - other) < kNearly; }

// Lines from edge to edge of the plot at one height, and upright ones from its upper edge.
std::vector<DrawnLine> LinesAcross(const Drawn& panel, double y) {
  std::vector<DrawnLine> lines = panel.Parts.Lines;
  std::erase_if(lines, [&](const DrawnLine& line) {
    const auto& points = line.Points;
    return points.size() != 2 || !IsNear(points[0].y(), y) || !IsNear(points[1].y(), y) ||
           !IsNear(points[0].x(), panel.Plot.left()) || !IsNear(points[1].x(), panel.Plot.right());
  });
  return lines;
}

std::vector<DrawnLine> LinesDown(const Drawn& panel, double x, const QColor& colour) {
  std::vector<DrawnLine> lines = panel.Parts.Lines;
  std::erase_if(lines, [&](const DrawnLine& line) {
    const auto& points = line.Points;
    return points.size() != 2 || line.Pen.color() != colour || !IsNear(points[0].x(), x) ||
           !IsNear(points[1].x(), x) || !IsNear(points[0].y(), panel.Plot.top());
  });
  return lines;
}

DrawnText TextIn(const Drawn& panel, const char* text) {
  const auto found =
      std::ranges::find(panel.Parts.Texts, QString::fromUtf8(text), &DrawnText::Text);
  EXPECT_NE(found, panel.Parts.Texts.end()) << text;
  return found == panel.Parts.Texts.end() ? DrawnText() : *found;
}

// The seventh panel of curves goes from -30 to 60.
constexpr std::size_t kKnee = 6;

TEST(PanelParts, AThinLineStandsAtZero) {
  const Drawn panel = PanelOf(SamplePages({}), 0, kKnee);
  const auto zero = LinesAcross(panel, panel.Y(1 / 3.0));
  const auto tick = LinesAcross(panel, panel.Y(0.5));
  ASSERT_THAT(tick, SizeIs(1));
  ASSERT_FALSE(zero.empty());
  EXPECT_LT(zero.back().Pen.color().lightness(), tick[0].Pen.color().lightness());
  EXPECT_LT(zero.back().Pen.widthF(), 6) << "thinner than a stride";
}

// The lines across a panel of curves whose ordinate has ticks of 15 between these.
std::vector<DrawnLine> GridBetween(double low, double high) {
  auto set = SamplePages({});
  std::get<pages::CurvePanel>(set.Pages[0].Panels[kKnee]).Ordinate = {low, high, 15, true};
  const Drawn panel = PanelOf(set, 0, kKnee);
  std::vector<DrawnLine> lines;
  for (const DrawnLine& line : panel.Parts.Lines) {
    if (line.Points.size() != 2) continue;
    const auto across = LinesAcross(panel, line.Points[0].y());
    if (!across.empty() && across[0].Points == line.Points) lines.push_back(line);
  }
  return lines;
}

TEST(PanelParts, OfAWideRangeSomeTicksAreDrawnAlone) {
  EXPECT_THAT(GridBetween(-30, 60), SizeIs(6)) << "five ticks and zero";
  for (const double end : {1500.0, 70995.0, 3.5e38}) {
    const auto lines = GridBetween(-end, end);
    EXPECT_GT(lines.size(), 6U) << end;
    EXPECT_LT(lines.size(), 28U) << end;
  }
}

TEST(PanelParts, AbscissaGoesFromZeroToAHundredPercent) {
  const Drawn panel = PanelOf(SamplePages({}), 0, kKnee);
  EXPECT_NEAR(TextIn(panel, "100").Ink.center().x(), panel.X(1), 10);
  EXPECT_NEAR(TextIn(panel, "20").Ink.center().x(), panel.X(0.2), 10);
  EXPECT_NEAR(TextIn(panel, "80").Ink.center().x(), panel.X(0.8), 10);
}

TEST(PanelParts, FootOffIsALineDownThePlotAtItsPercent) {
  const Drawn panel = PanelOf(SamplePages({}), 0, kKnee);
  for (const QColor& colour : {kLeft, kRight}) {
    const auto lines = LinesDown(panel, panel.X(0.615), colour);
    ASSERT_THAT(lines, SizeIs(1));
    EXPECT_NEAR(lines[0].Points[1].y(), panel.Plot.bottom(), kNearly);
  }
}

TEST(PanelParts, OppositeEventsAreShortTicksAtTheUpperEdge) {
  const Drawn panel = PanelOf(SamplePages({}), 0, kKnee);
  for (const QColor& colour : {kLeft, kRight}) {
    for (const double share : {0.115, 0.502}) {
      const auto ticks = LinesDown(panel, panel.X(share), colour);
      ASSERT_THAT(ticks, SizeIs(1));
      EXPECT_LT(ticks[0].Points[1].y(), panel.Plot.top() + 40);
      EXPECT_GT(ticks[0].Points[1].y(), panel.Plot.top() + 10);
    }
  }
}

TEST(PanelParts, DirectionWordsStandAtTheEndsOfTheOrdinate) {
  const Drawn panel = PanelOf(SamplePages({}), 0, kKnee);
  const QRectF down = TextIn(panel, "Plant").Ink;
  const QRectF up = TextIn(panel, "Dors").Ink;
  EXPECT_NEAR(down.bottom(), panel.Plot.bottom(), 15);
  EXPECT_NEAR(up.top(), panel.Plot.top(), 15);
  EXPECT_LT(down.right(), panel.Plot.left());
  EXPECT_LT(up.right(), panel.Plot.left());
}

TEST(PanelParts, NormalsAreAGreyBandBehindTheCurves) {
  const Drawn panel = PanelOf(SamplePages({2, 1, true, {}}), 0, kKnee);
  const auto band = std::ranges::find_if(panel.Parts.Areas, [&](const DrawnArea& area) {
    return area.Outline.size() > 50 && area.Fill.rgb() == kNormal.rgb();
  });
  ASSERT_NE(band, panel.Parts.Areas.end());
  const QRectF bounds = band->Outline.boundingRect();
  EXPECT_NEAR(bounds.left(), panel.Plot.left(), kNearly);
  EXPECT_NEAR(bounds.right(), panel.Plot.right(), kNearly);
  EXPECT_THAT(PanelOf(SamplePages({2, 1, false, {}}), 0, kKnee).Parts.Areas,
              testing::Each(testing::Truly(
                  [&](const DrawnArea& area) { return area.Fill.rgb() != kNormal.rgb(); })));
}

TEST(PanelParts, VariabilityNamesTheDeviationOfEachSideInTheUpperCorner) {
  const Drawn panel = PanelOf(SamplePages({}), 4, kKnee);
  for (const auto& [text, colour] : {std::pair{"L 1.25", kLeft}, std::pair{"R 1.25", kRight}}) {
    const DrawnText number = TextIn(panel, text);
    EXPECT_EQ(number.Colour, colour);
    EXPECT_TRUE(
        QRectF(panel.Plot.center(), panel.Plot.topRight()).normalized().contains(number.Ink));
  }
}

TEST(PanelParts, VariabilityDrawsStridesAlsoWhereMeansAreAskedFor) {
  DrawingStyle style;
  style.Curves = plot::Shown::Means;
  const Drawn panel = PanelOf(SamplePages({3, 1, false, {}}), 4, kKnee, style);
  EXPECT_EQ(std::ranges::count_if(panel.Parts.Lines,
                                  [](const DrawnLine& line) {
                                    return line.Points.size() > 20 && line.Pen.color() == kLeft;
                                  }),
            3);
}

TEST(PanelParts, MeasureHasABarASideFromZeroToItsMean) {
  const Drawn panel = PanelOf(SamplePages({3, 1, false, {}}), 1, 0);
  for (const auto& [colour, value] : {std::pair{kLeft, 1.23}, std::pair{kRight, 1.31}}) {
    std::vector<QRectF> bars;
    for (const DrawnLine& line : panel.Parts.Lines) {
      if (line.Points.isClosed() && line.Pen.color() == colour)
        bars.push_back(line.Points.boundingRect());
    }
    ASSERT_THAT(bars, SizeIs(1));
    EXPECT_NEAR(bars[0].bottom(), panel.Y(0), kNearly);
    EXPECT_NEAR(bars[0].top(), panel.Y(value / 2), kNearly);
  }
}

TEST(PanelParts, MeasureHasItsDeviationAndNumberBesideTheBars) {
  const Drawn panel = PanelOf(SamplePages({3, 1, false, {}}), 1, 0);
  EXPECT_EQ(TextIn(panel, "1.23 ± 0.12").Colour, kLeft);
  EXPECT_EQ(TextIn(panel, "1.31 ± 0.12").Colour, kRight);
  const bool hasLine = std::ranges::any_of(panel.Parts.Lines, [&](const DrawnLine& line) {
    const auto& points = line.Points;
    return points.size() == 2 && IsNear(points[0].x(), points[1].x()) &&
           IsNear(points[0].y(), panel.Y(1.35 / 2)) && IsNear(points[1].y(), panel.Y(1.11 / 2));
  });
  EXPECT_TRUE(hasLine) << "one standard deviation a side";
}

TEST(PanelParts, NormalsOfAMeasureAreABandBehindItsBars) {
  const Drawn panel = PanelOf(SamplePages({3, 1, true, {}}), 1, 0);
  const auto band = std::ranges::find_if(
      panel.Parts.Areas, [](const DrawnArea& area) { return area.Fill.rgb() == kNormal.rgb(); });
  const auto bar = std::ranges::find_if(
      panel.Parts.Areas, [](const DrawnArea& area) { return area.Fill.rgb() == kLeft.rgb(); });
  ASSERT_NE(band, panel.Parts.Areas.end());
  ASSERT_NE(bar, panel.Parts.Areas.end());
  EXPECT_LT(band, bar) << "it is drawn before them";
  const QRectF bounds = band->Outline.boundingRect();
  EXPECT_NEAR(bounds.top(), panel.Y(1.5 / 2), kNearly);
  EXPECT_NEAR(bounds.bottom(), panel.Y(1.3 / 2), kNearly);
}

// The page of a label over time, with these values in its first panel.
Drawn TraceOf(const std::vector<std::optional<float>>& values) {
  auto set = SamplePages({});
  pages::Page& page = set.Pages.at(3);
  page.OverTime->Events.clear();
  page.OverTime->Times = {0, 1, 2, 3, 4};
  page.OverTime->Times.resize(values.size());
  std::get<pages::TracePanel>(page.Panels.at(0)).Values = values;
  return PanelOf(set, 3, 0);
}

TEST(PanelParts, FrameThatIsSeenAloneIsADot) {
  const Drawn panel = TraceOf({std::nullopt, 500.0F, std::nullopt, 0.0F, 500.0F});
  ASSERT_THAT(panel.Parts.Areas, testing::Not(IsEmpty()));
  const QPointF dot = panel.Parts.Areas.back().Outline.boundingRect().center();
  EXPECT_NEAR(dot.x(), panel.X(0.25), 1);
  EXPECT_NEAR(dot.y(), panel.Y(0.5), 1);
}

TEST(PanelParts, TrialOfOneFrameIsADotAtItsStart) {
  const Drawn panel = TraceOf({500.0F});
  ASSERT_THAT(panel.Parts.Areas, testing::Not(IsEmpty()));
  EXPECT_NEAR(panel.Parts.Areas.back().Outline.boundingRect().center().x(), panel.X(0), 1);
}

TEST(PanelParts, EventsOfATrialStandAtTheirTimes) {
  auto set = SamplePages({});
  pages::Page& page = set.Pages.at(3);
  page.OverTime->Events = {
      {modVantrel::GaitSide::Left, modVantrel::GaitEventType::FootStrike, 0.3990},
      {modVantrel::GaitSide::Right, modVantrel::GaitEventType::FootOff, 1.9950}};
  const Drawn panel = PanelOf(set, 3, 2);
  const auto strike = LinesDown(panel, panel.X(0.1), kLeft);
  const auto off = LinesDown(panel, panel.X(0.5), kRight);
  ASSERT_THAT(strike, SizeIs(1));
  ASSERT_THAT(off, SizeIs(1));
  EXPECT_EQ(strike[0].Pen.style(), Qt::SolidLine);
  EXPECT_EQ(off[0].Pen.style(), Qt::CustomDashLine);
}

TEST(PanelParts, EventWithoutATimeIsNowhere) {
  auto set = SamplePages({});
  set.Pages.at(3).OverTime->Events = {{modVantrel::GaitSide::Left,
                                       modVantrel::GaitEventType::FootStrike,
                                       std::numeric_limits<double>::quiet_NaN()}};
  const Drawn panel = PanelOf(set, 3, 2);
  for (const auto& line : panel.Parts.Lines) {
    for (const QPointF& point : line.Points) EXPECT_TRUE(std::isfinite(point.x()));
  }
}

}  // namespace
