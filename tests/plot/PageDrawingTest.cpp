// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include <QPainter>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Recording.h"
#include "SamplePages.h"
#include "plot/PageDrawing.h"
#include "plot/PageFiles.h"

namespace {

using modVantrel::GaitSide;
using plot::DrawingStyle;
using plot::Shown;
using plot_tests::DrawnLine;
using plot_tests::DrawnText;
using plot_tests::kA4;
using plot_tests::kLeft;
using plot_tests::kRight;
using plot_tests::Record;
using plot_tests::Recording;
using plot_tests::Sample;
using plot_tests::SamplePages;
using testing::AllOf;
using testing::Contains;
using testing::Field;
using testing::Not;
using testing::SizeIs;

Recording PageOf(const pages::PageSet& set, std::size_t index = 0, const DrawingStyle& style = {},
                 const QRectF& sheet = kA4) {
  return Record([&](QPainter& painter) { plot::DrawPage(painter, set, index, sheet, style); });
}

DrawingStyle StyleOf(Shown shown, bool isMonochrome = false) {
  DrawingStyle style;
  style.Curves = shown;
  style.IsMonochrome = isMonochrome;
  return style;
}

auto IsText(const char* text) { return Field(&DrawnText::Text, QString::fromUtf8(text)); }

// Lines of more than two points: curves. Frames and bars are closed.
std::vector<DrawnLine> CurvesIn(const Recording& page) {
  std::vector<DrawnLine> curves;
  std::ranges::copy_if(page.Lines, std::back_inserter(curves), [](const DrawnLine& line) {
    return line.Points.size() > 2 && !line.Points.isClosed();
  });
  return curves;
}

std::vector<DrawnLine> CurvesIn(const Recording& page, const QRectF& plot, const QColor& colour) {
  std::vector<DrawnLine> curves = CurvesIn(page);
  std::erase_if(curves, [&](const DrawnLine& line) {
    return line.Pen.color() != colour || !plot.adjusted(-1, -1, 1, 1).contains(line.Points[0]);
  });
  return curves;
}

// But for a hundredth of its units: lines end at borders.
bool Holds(const QRectF& room, const QPolygonF& points) {
  constexpr double kNearly = 0.01;
  const QRectF wider = room.adjusted(-kNearly, -kNearly, kNearly, kNearly);
  return std::ranges::all_of(points, [&](const QPointF& point) { return wider.contains(point); });
}

QRectF PlotOf(const pages::PageSet& set, std::size_t panel) {
  return plot::GeometryOf(set.Pages[0], kA4).Plots[panel];
}

// Every number of strides and files, length of names, sheet and page.
using Case = std::tuple<int, bool, bool, bool, std::size_t>;

class EveryPage : public testing::TestWithParam<Case> {
 protected:
  static plot::SheetKind Sheet() {
    return {std::get<2>(GetParam()) ? plot::Paper::Letter : plot::Paper::A4,
            std::get<3>(GetParam())};
  }
  static Recording Drawn(Shown shown) {
    const int strides = std::get<0>(GetParam());
    Sample sample{strides, strides, true, {}};
    if (std::get<1>(GetParam())) sample.Longer = " with a name that goes on and_on_without_an_end";
    return PageOf(SamplePages(sample), std::get<4>(GetParam()), StyleOf(shown),
                  plot::SheetOf(Sheet()));
  }
};

TEST_P(EveryPage, HasNoTextOverAnother) {
  const auto texts = Drawn(Shown::Strides).Texts;
  ASSERT_GT(texts.size(), 20U);
  for (auto one = texts.begin(); one != texts.end(); ++one) {
    for (auto other = one + 1; other != texts.end(); ++other) {
      EXPECT_FALSE(one->Ink.intersects(other->Ink))
          << one->Text.toStdString() << " over " << other->Text.toStdString();
    }
  }
}

TEST_P(EveryPage, HasNothingOutsideItsSheet) {
  const QRectF sheet = plot::SheetOf(Sheet()).adjusted(-1, -1, 1, 1);
  for (const Shown shown : {Shown::Strides, Shown::Means}) {
    const Recording page = Drawn(shown);
    for (const DrawnText& text : page.Texts) {
      EXPECT_TRUE(sheet.contains(text.Ink)) << text.Text.toStdString();
    }
    for (const DrawnLine& line : page.Lines) {
      EXPECT_TRUE(Holds(sheet, line.Points));
    }
    for (const auto& area : page.Areas) EXPECT_TRUE(Holds(sheet, area.Outline));
  }
}

INSTANTIATE_TEST_SUITE_P(Drawing, EveryPage,
                         testing::Combine(testing::Values(1, 30), testing::Bool(), testing::Bool(),
                                          testing::Bool(), testing::Values(0, 1, 2, 3, 4)));

TEST(PageDrawing, ShowsOnTopWhoseCurvesTheyAre) {
  const auto texts = PageOf(SamplePages({3, 2, false, {}})).Texts;
  for (const char* text :
       {"Clinical gait analysis", "Kinematics", "Subject 0815", "walk 1.c3d  walk 2.c3d", "100 Hz",
        "Left, 3 strides", "Right, 3 strides"}) {
    EXPECT_THAT(texts, Contains(IsText(text))) << text;
  }
}

TEST(PageDrawing, OverTimeShowsOnTopTheStridesOfItsFileAlone) {
  auto set = SamplePages({6, 2, false, {}});
  set.Pages[3].OverTime->LeftStrides = 2;
  set.Pages[3].OverTime->RightStrides = 1;
  const auto texts = PageOf(set, 3).Texts;
  EXPECT_THAT(texts, Contains(IsText("Left, 2 strides")));
  EXPECT_THAT(texts, Contains(IsText("Right, 1 stride")));
}

TEST(PageDrawing, ShowsAtTheFootProgramDateAndPage) {
  const auto texts = PageOf(SamplePages({3, 2, false, {}}), 1).Texts;
  for (const char* text :
       {"vantrel-curves 0.3.0", "Files of 2024-05-01 to 2024-05-02", "Page 2 of 5"}) {
    EXPECT_THAT(texts, Contains(IsText(text))) << text;
  }
}

TEST(PageDrawing, HasADirectionWordAtBothEndsOfEachOrdinate) {
  const auto texts = PageOf(SamplePages({})).Texts;
  EXPECT_EQ(std::ranges::count(texts, QStringLiteral("Plant"), &DrawnText::Text), 12);
  EXPECT_EQ(std::ranges::count(texts, QStringLiteral("Dors"), &DrawnText::Text), 12);
}

TEST(PageDrawing, SaysWhyAPanelIsEmpty) {
  EXPECT_THAT(PageOf(SamplePages({})).Texts,
              Contains(IsText("AnkleAngles: the trial has no such label")));
}

TEST(PageDrawing, OfStridesHasALineForEachStrideOfItsSidesColour) {
  const auto set = SamplePages({3, 1, false, {}});
  const Recording page = PageOf(set);
  EXPECT_THAT(CurvesIn(page, PlotOf(set, 2), kLeft), SizeIs(3));
  const auto right = CurvesIn(page, PlotOf(set, 2), kRight);
  EXPECT_THAT(right, SizeIs(3));
  for (const DrawnLine& line : right) EXPECT_EQ(line.Pen.style(), Qt::CustomDashLine);
}

TEST(PageDrawing, ThatIsQuickHasStridesOfNoMoreThanAPixel) {
  const auto set = SamplePages({3, 1, false, {}});
  const QRectF screen(0, 0, kA4.width() / 3, kA4.height() / 3);  // three tenths of a point a pixel
  DrawingStyle style;
  const auto thick = CurvesIn(PageOf(set, 0, style, screen));
  EXPECT_GT(thick[0].Pen.widthF() / 3, 1.9);
  style.IsQuick = true;
  const auto quick = CurvesIn(PageOf(set, 0, style, screen));
  EXPECT_EQ(quick.size(), thick.size());
  for (const DrawnLine& line : quick) EXPECT_LE(line.Pen.widthF() / 3, 1);
}

TEST(PageDrawing, OfMeansHasOneThickLineAndOneBandASide) {
  const auto set = SamplePages({3, 1, false, {}});
  const Recording page = PageOf(set, 0, StyleOf(Shown::Means));
  const auto right = CurvesIn(page, PlotOf(set, 2), kRight);
  ASSERT_THAT(right, SizeIs(1));
  EXPECT_EQ(right[0].Pen.style(), Qt::SolidLine);
  EXPECT_GT(right[0].Pen.widthF(), 10);
  QColor band = kRight;
  band.setAlpha(64);
  EXPECT_EQ(std::ranges::count(page.Areas, band, &plot_tests::DrawnArea::Fill), 11 + 1)
      << "in eleven panels and in the legend";
}

TEST(PageDrawing, LeavesAGapWhereInstantsAreMissing) {
  const auto set = SamplePages({1, 1, false, {}});
  const auto left = CurvesIn(PageOf(set), PlotOf(set, 1), kLeft);
  ASSERT_THAT(left, SizeIs(2));
  const QRectF plot = PlotOf(set, 1);
  EXPECT_NEAR(left[0].Points.back().x(), plot.left() + 0.38 * plot.width(), 0.01);
  EXPECT_NEAR(left[1].Points.front().x(), plot.left() + 0.50 * plot.width(), 0.01);
}

TEST(PageDrawing, LeavesTheMarksOfBothSidesToBeSeenWhereTheyFallTogether) {
  const auto set = SamplePages({3, 1, false, {}});
  for (const Shown shown : {Shown::Strides, Shown::Means}) {
    const Recording page = PageOf(set, 0, StyleOf(shown));
    const QRectF plot = PlotOf(set, 2);
    std::map<QRgb, std::set<Qt::PenStyle>> lines;
    std::map<QRgb, double> ticks;
    for (const DrawnLine& line : page.Lines) {
      const QRectF bounds = line.Points.boundingRect();
      if (line.Points.size() != 2 || bounds.width() > 0 || !Holds(plot, line.Points)) continue;
      if (bounds.height() > plot.height() / 2)
        lines[line.Pen.color().rgb()].insert(line.Pen.style());
      if (bounds.height() < 40) ticks[line.Pen.color().rgb()] = bounds.height();
    }
    EXPECT_THAT(lines[kLeft.rgb()], testing::ElementsAre(Qt::SolidLine));
    EXPECT_THAT(lines[kRight.rgb()], testing::ElementsAre(Qt::CustomDashLine));
    EXPECT_GT(ticks[kLeft.rgb()], ticks[kRight.rgb()] + 10);
    EXPECT_GT(ticks[kRight.rgb()], 10);
  }
}

TEST(PageDrawing, CutsCurvesAndBandsAtTheirPanels) {
  const auto set = SamplePages({3, 1, true, {}});
  const auto plots = plot::GeometryOf(set.Pages[0], kA4).Plots;
  const auto isInAPlot = [&](const QPolygonF& line) {
    return std::ranges::any_of(plots, [&](const QRectF& plot) { return Holds(plot, line); });
  };
  for (const Shown shown : {Shown::Strides, Shown::Means}) {
    const Recording page = PageOf(set, 0, StyleOf(shown));
    ASSERT_FALSE(CurvesIn(page).empty());
    for (const DrawnLine& line : CurvesIn(page)) EXPECT_TRUE(isInAPlot(line.Points));
    for (const auto& area : page.Areas) {
      if (area.Outline.size() <= 20) continue;
      EXPECT_TRUE(isInAPlot(area.Outline));
    }
  }
  // The first panel's curves leave it, so each of them is more than one line.
  EXPECT_GT(CurvesIn(PageOf(set), plots[0], kLeft).size(), 3U);
}

TEST(PageDrawing, HasTheNumbersOfAWidenedRangeAlone_InBold) {
  const auto texts = PageOf(SamplePages({})).Texts;
  EXPECT_THAT(texts, Contains(AllOf(IsText("10"), Field(&DrawnText::IsBold, true))));
  EXPECT_THAT(texts, Not(Contains(AllOf(IsText("45"), Field(&DrawnText::IsBold, true)))));
}

TEST(PageDrawing, WithoutColoursTellsSidesApartByDashesAndGreys) {
  const auto set = SamplePages({3, 1, true, {}});
  for (const Shown shown : {Shown::Strides, Shown::Means}) {
    const Recording page = PageOf(set, 0, StyleOf(shown, true));
    std::set<std::pair<QRgb, Qt::PenStyle>> pens;
    for (const DrawnLine& line : CurvesIn(page)) {
      EXPECT_EQ(line.Pen.color().saturation(), 0);
      pens.emplace(line.Pen.color().rgb(), line.Pen.style());
    }
    EXPECT_THAT(pens, SizeIs(3)) << "left, right and normals";
    EXPECT_THAT(pens, Contains(testing::Pair(testing::_, Qt::CustomDashLine)));
    for (const DrawnText& text : page.Texts) EXPECT_EQ(text.Colour.saturation(), 0);
  }
}

TEST(PageDrawing, LiftsAStrideInAllPanelsInFrontOfPaleOnes) {
  const auto set = SamplePages({3, 1, false, {}});
  DrawingStyle style;
  style.Lifted = pages::StrideId{0, GaitSide::Left, 2};
  const Recording page = PageOf(set, 0, style);
  const auto curves = CurvesIn(page);
  const auto isOpaque = [](const DrawnLine& line) { return line.Pen.color().alpha() == 255; };
  EXPECT_THAT(CurvesIn(page, PlotOf(set, 2), kLeft), SizeIs(1));
  EXPECT_TRUE(isOpaque(curves.back()));
  EXPECT_GT(curves.back().Pen.widthF(), 10);
}

TEST(PanelDrawing, IsWhatThePageHasThere) {
  const auto set = SamplePages({2, 1, true, {}});
  const auto geometry = plot::GeometryOf(set.Pages[0], kA4);
  const Recording panel = Record(
      [&](QPainter& painter) { plot::DrawPanel(painter, set, 0, 6, geometry, {}, std::nullopt); });
  EXPECT_THAT(panel.Texts, Contains(IsText("Knee flexion")));
  EXPECT_EQ(CurvesIn(panel, PlotOf(set, 6), kLeft).size(),
            CurvesIn(PageOf(set), PlotOf(set, 6), kLeft).size());
  const QRectF cell = geometry.Panels[6].adjusted(-1, -1, 1, 1);
  for (const DrawnText& text : panel.Texts) EXPECT_TRUE(cell.contains(text.Ink));
}

TEST(PanelDrawing, OfAPartShowsWhatLiesInThatPart) {
  const auto set = SamplePages({2, 1, true, {}});
  const auto geometry = plot::GeometryOf(set.Pages[0], kA4);
  const Recording panel = Record([&](QPainter& painter) {
    plot::DrawPanel(painter, set, 0, 6, geometry, {}, plot::PanelView{40, 60, 10, 40});
  });
  for (const char* number : {"40", "45", "50", "55", "60"}) {
    EXPECT_THAT(panel.Texts, Contains(IsText(number)));
  }
  EXPECT_THAT(panel.Texts, Not(Contains(IsText("100"))));
  ASSERT_FALSE(CurvesIn(panel).empty());
  for (const DrawnLine& line : CurvesIn(panel)) {
    EXPECT_TRUE(Holds(geometry.Plots[6], line.Points));
  }
}

TEST(PageDrawing, OnASheetOfOtherUnitsIsTheSamePage) {
  const auto set = SamplePages({2, 1, true, {}});
  const Recording large = PageOf(set);
  const Recording small = PageOf(set, 0, {}, QRectF(100, 50, kA4.width() / 8, kA4.height() / 8));
  ASSERT_EQ(small.Texts.size(), large.Texts.size());
  for (std::size_t i = 0; i < large.Texts.size(); ++i) {
    EXPECT_NEAR(small.Texts[i].Ink.left(), 100 + large.Texts[i].Ink.left() / 8, 0.5);
    EXPECT_NEAR(small.Texts[i].Ink.top(), 50 + large.Texts[i].Ink.top() / 8, 0.5);
  }
}

}  // namespace
