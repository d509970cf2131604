// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/pages/PageTrials.h"

namespace {

using modVantrel::GaitSide;
using pages::PageKind;
using pages::Range;
using pages::TracePanel;
using tests::TrialOfFourStrides;
using tests::ValuesOf;

const TracePanel& TraceOf(const pages::Page& page, std::size_t i) {
  return std::get<TracePanel>(page.Panels.at(i));
}

sample::TrialBuilder Knee() {
  return TrialOfFourStrides()
      .AddPoint("LKNE", tests::Moving({0, 100, 0}, {1, 0, -2}))
      .SetParam("POINT", sample::TextParam("UNITS", "mm"));
}

std::vector<pages::Page> LabelPages(const std::vector<pages::TrialValues>& trials) {
  pages::PageChoice choice;
  choice.Kinds = {PageKind::Label};
  return pages::MakePages(trials, choice).Pages;
}

TEST(LabelPage, ShowsTheThreeCoordinatesOverTheWholeTrial) {
  const auto pages = LabelPages({ValuesOf(Knee(), std::vector<std::string>{"LKNE"})});
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0].Title, "LKNE");
  EXPECT_EQ(pages[0].Rows, 3);
  EXPECT_EQ(pages[0].Columns, 1);
  ASSERT_EQ(pages[0].Panels.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    const TracePanel& panel = TraceOf(pages[0], i);
    EXPECT_EQ(panel.Row, static_cast<int>(i) + 1);
    EXPECT_EQ(panel.Part, modVantrel::kComponents.at(i));
    EXPECT_EQ(panel.Unit, "mm");
    EXPECT_EQ(panel.Values.size(), 161U);
  }
  EXPECT_EQ(TraceOf(pages[0], 0).Title, "LKNE x");
  EXPECT_EQ(TraceOf(pages[0], 0).Values[10], 11);
  EXPECT_EQ(TraceOf(pages[0], 2).Values[10], -22);
}

TEST(LabelPage, RangesAreRoundAndFollowTheData) {
  const auto pages = LabelPages({ValuesOf(Knee(), std::vector<std::string>{"LKNE"})});
  EXPECT_EQ(TraceOf(pages.at(0), 0).Ordinate, (Range{0, 200, 50, false}));
  EXPECT_EQ(TraceOf(pages.at(0), 2).Ordinate, (Range{-400, 0, 100, false}));
}

TEST(LabelPage, CarriesTimesAndEventsOfTheTrial) {
  const auto pages = LabelPages({ValuesOf(Knee(), std::vector<std::string>{"LKNE"})});
  ASSERT_TRUE(pages.at(0).OverTime);
  const pages::Trace& trace = *pages[0].OverTime;
  EXPECT_EQ(trace.File, 0U);
  EXPECT_EQ(trace.Label, "LKNE");
  EXPECT_EQ(trace.Times.size(), 161U);
  EXPECT_EQ(trace.Times.at(64), 1);
  ASSERT_EQ(trace.Events.size(), 12U);
  EXPECT_EQ(trace.Events[0].Side, GaitSide::Left);
  EXPECT_EQ(trace.Events[0].Type, modVantrel::GaitEventType::FootStrike);
  EXPECT_EQ(trace.Events[0].Time, 10.0 / 64);
}

TEST(LabelPage, CountsTheStridesOfItsFileThatAreNotLeftOut) {
  const std::vector<std::string> label = {"LKNE"};
  const std::vector<pages::TrialValues> trials = {ValuesOf(Knee(), label), ValuesOf(Knee(), label)};
  pages::PageChoice choice;
  choice.Kinds = {PageKind::Label};
  choice.LeftOut = {{1, GaitSide::Right, 2}};
  const auto pages = pages::MakePages(trials, choice).Pages;
  EXPECT_EQ(pages.at(0).OverTime->LeftStrides, 2);
  EXPECT_EQ(pages.at(0).OverTime->RightStrides, 2);
  EXPECT_EQ(pages.at(1).OverTime->LeftStrides, 2);
  EXPECT_EQ(pages.at(1).OverTime->RightStrides, 1);
}

TEST(LabelPage, FramesThatAreNotSeenAreMissingInEveryCoordinate) {
  const auto pages = LabelPages({ValuesOf(Knee().NotSeen(1, 5), std::vector<std::string>{"LKNE"})});
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_FALSE(TraceOf(pages.at(0), i).Values[4]);
    EXPECT_TRUE(TraceOf(pages.at(0), i).Values[5]);
  }
}

TEST(LabelPage, LabelThatIsNeverSeenSaysSo) {
  sample::TrialBuilder builder;
  builder.Frames(1, 2).AddPoint("LKNE", tests::Standing(1, 2, 3)).NotSeen(1, 1).NotSeen(1, 2);
  const auto pages = LabelPages({ValuesOf(builder, std::vector<std::string>{"LKNE"})});
  EXPECT_EQ(TraceOf(pages.at(0), 1).Notes,
            std::vector<std::string>{"LKNE is not seen in this trial."});
  EXPECT_EQ(TraceOf(pages.at(0), 1).Ordinate, (Range{0, 1, 0.2, false}));
}

TEST(LabelPage, ThereIsOneForEachFileAndLabel) {
  const auto both = Knee().AddPoint("RKNE", tests::Standing(1, 2, 3));
  const std::vector<std::string> labels = {"RKNE", "LKNE"};
  const auto pages = LabelPages({ValuesOf(both, labels), ValuesOf(Knee(), labels)});
  ASSERT_EQ(pages.size(), 3U);
  EXPECT_EQ(pages[0].OverTime->Label, "RKNE") << "in the order asked for";
  EXPECT_EQ(pages[1].OverTime->Label, "LKNE");
  EXPECT_EQ(pages[2].OverTime->File, 1U);
}

}  // namespace
