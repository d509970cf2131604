// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <filesystem>
#include <limits>

#include <gtest/gtest.h>

#include "pages/TrialValues.h"
#include "tests/pages/PageTrials.h"
#include "tests/visit/VisitWalks.h"

namespace {

using modVantrel::GaitSide;
using modVantrel::PointKind;
using pages::PageKind;
using pages::ReadTrialValues;
using pages::TrialValues;
using tests::Standing;
using tests::TrialOfFourStrides;
using tests::ValuesOf;

TEST(TrialValues, HoldsEveryValidStrideInTheOrderOfTheTrial) {
  const TrialValues values = ValuesOf(TrialOfFourStrides());
  ASSERT_EQ(values.Strides.size(), 4U);
  EXPECT_EQ(values.Strides[0].Side, GaitSide::Left);
  EXPECT_EQ(values.Strides[1].Side, GaitSide::Right);
  EXPECT_EQ(values.Strides[2].Side, GaitSide::Left);
  EXPECT_EQ(values.Strides[2].Number, 2);
  for (const pages::TrialStride& stride : values.Strides) {
    EXPECT_TRUE(stride.IsComplete);
    EXPECT_EQ(stride.FootOff, 60);
    EXPECT_EQ(stride.OppositeFootOff, 10);
    EXPECT_EQ(stride.OppositeFootStrike, 50);
  }
}

TEST(TrialValues, IncompleteStrideHasNoMeasures) {
  sample::TrialBuilder builder = TrialOfFourStrides();
  builder.AddEvent("Left", "Foot Strike", 165.0F / 64);  // behind the last frame
  const TrialValues values = ValuesOf(builder);
  ASSERT_EQ(values.Strides.size(), 5U);
  for (const pages::TrialStride& stride : values.Strides) {
    EXPECT_EQ(stride.IsComplete, stride.Side != GaitSide::Left || stride.Number != 3);
    EXPECT_EQ(stride.Measures.has_value(), stride.IsComplete);
    EXPECT_EQ(stride.Measures ? stride.Measures->Side : stride.Side, stride.Side);
  }
}

TEST(TrialValues, LabelHasTheStridesOfItsSide) {
  const TrialValues values = ValuesOf(TrialOfFourStrides()
                                          .AddPoint("LKneeAngles", Standing(1, 2, 3))
                                          .AddPoint("rkneeangles", Standing(4, 5, 6))
                                          .AddPoint("LKNE", Standing(7, 8, 9)));
  ASSERT_EQ(values.Labels.size(), 2U) << "those of the pages alone";
  EXPECT_EQ(values.Labels[0].Label, "LKneeAngles");
  EXPECT_EQ(values.Labels[1].Label, "rkneeangles") << "as the file spells it";
  for (const pages::TrialLabel& label : values.Labels) {
    ASSERT_EQ(label.Strides.size(), 2U);
    EXPECT_EQ(label.Kind, PointKind::Angle);
    EXPECT_FALSE(label.HasNotANumber);
    EXPECT_TRUE(label.Strides[0].EntersMeans);
    EXPECT_TRUE(label.Strides[0].Missing.none());
  }
  EXPECT_EQ(values.Labels[0].Strides[1].Stride, 2U);
  EXPECT_EQ(values.Labels[1].Strides[1].Stride, 3U);
  EXPECT_EQ(values.Labels[1].Strides[0].Curve[51].Y, 5);
}

TEST(TrialValues, OnlyTheLabelsOfTheAskedPagesAreRead) {
  tests::OpenedWalk walk = tests::Opened(TrialOfFourStrides()
                                             .AddPoint("LKneeAngles", Standing(1, 2, 3))
                                             .AddPoint("LKneePower", Standing(1, 2, 3)));
  const auto labels = [&walk](const std::vector<PageKind>& kinds) {
    std::vector<std::string> names;
    for (const auto& label : ReadTrialValues(walk.State(), {kinds, {}}).Labels) {
      names.push_back(label.Label);
    }
    return names;
  };
  EXPECT_EQ(labels({PageKind::Kinematics, PageKind::Variability}),
            std::vector<std::string>{"LKneeAngles"});
  EXPECT_EQ(labels({PageKind::Scores}), std::vector<std::string>{"LKneeAngles"});
  EXPECT_EQ(labels({PageKind::Kinetics}), std::vector<std::string>{"LKneePower"});
  EXPECT_TRUE(labels({PageKind::Measures, PageKind::Label}).empty());
}

TEST(TrialValues, MeasuresAreReadForTheirPageAlone) {
  tests::OpenedWalk walk = tests::Opened(TrialOfFourStrides());
  EXPECT_FALSE(ReadTrialValues(walk.State(), {{PageKind::Kinematics}, {}}).Strides[0].Measures);
  EXPECT_TRUE(ReadTrialValues(walk.State(), {{PageKind::Measures}, {}}).Strides[0].Measures);
}

TEST(TrialValues, UnitIsThatOfTheKindAlsoWhereTheFileListsNothing) {
  const TrialValues values =
      ValuesOf(TrialOfFourStrides()
                   .AddPoint("LKneeMoment", Standing(1, 2, 3))
                   .AddPoint("LKneePower", Standing(1, 2, 3))
                   .SetParam("POINT", sample::TextParam("UNITS", "mm"))
                   .SetParam("POINT", sample::TextParam("MOMENT_UNITS", "Nmm")));
  ASSERT_EQ(values.Labels.size(), 2U);
  EXPECT_EQ(values.Labels[0].Unit, "Nmm");
  EXPECT_EQ(values.Labels[1].Unit, "");
  EXPECT_EQ(values.Labels[1].Kind, PointKind::Power);
}

TEST(TrialValues, GapLeavesInstantsOutAndKeepsTheStrideFromMeans) {
  const TrialValues values = ValuesOf(TrialOfFourStrides()
                                          .AddPoint("LKneeAngles", Standing(1, 2, 3))
                                          .NotSeen(1, tests::kFirstLeftFrame + 20));
  ASSERT_EQ(values.Labels.at(0).Strides.size(), 2U);
  const auto& gap = values.Labels[0].Strides[0];
  EXPECT_EQ(gap.Missing.count(), 1U);
  EXPECT_TRUE(gap.Missing.test(20));
  EXPECT_FALSE(gap.EntersMeans);
  EXPECT_TRUE(values.Labels[0].Strides[1].EntersMeans);
}

TEST(TrialValues, NotANumberAnywhereLeavesNoInstantOfAnyStride) {
  const float none = std::numeric_limits<float>::quiet_NaN();
  const TrialValues values =
      ValuesOf(TrialOfFourStrides().AddPoint("LKneeAngles", tests::Step(1, 161, none)));
  ASSERT_EQ(values.Labels.at(0).Strides.size(), 2U);
  EXPECT_TRUE(values.Labels[0].HasNotANumber) << "in the last frame, outside all strides";
  for (const auto& stride : values.Labels[0].Strides) EXPECT_TRUE(stride.Missing.all());
}

TEST(TrialValues, LabelOverTimeIsMissingWhereItIsNotSeen) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 4).Rate(64);
  builder.AddPoint("LKNE", tests::Moving({0, 10, 20}, {1, 2, 3})).NotSeen(1, 3);
  const TrialValues values = ValuesOf(builder, std::vector<std::string>{"lkne", "LKNE", "RKNE"});
  ASSERT_EQ(values.OverTime.size(), 1U) << "once, and not the one that is not there";
  const pages::LabelOverTime& label = values.OverTime[0];
  EXPECT_EQ(label.Label, "LKNE");
  EXPECT_EQ(label.Times, (std::vector{0.0F, 1.0F / 64, 2.0F / 64, 3.0F / 64}));
  EXPECT_EQ(label.Values[0], (std::vector<std::optional<float>>{1, 2, std::nullopt, 4}));
  EXPECT_EQ(label.Values[2], (std::vector<std::optional<float>>{23, 26, std::nullopt, 32}));
}

TEST(TrialValues, AllEventsOfTheTrialAreKept) {
  sample::TrialBuilder builder = TrialOfFourStrides();
  builder.AddEvent("Left", "Start", 1).AddEvent("General", "End", 2);
  const TrialValues values = ValuesOf(builder);
  ASSERT_EQ(values.Events.size(), 14U);
  EXPECT_EQ(values.Events[12].Side, GaitSide::Left);
  EXPECT_EQ(values.Events[12].Type, modVantrel::GaitEventType::Other);
  EXPECT_EQ(values.Events[13].Time, 2);
}

TEST(TrialValues, NamesTheFileItsDateAndItsRate) {
  tests::OpenedWalk walk = tests::Opened(TrialOfFourStrides());
  using std::chrono::sys_days;
  const std::chrono::sys_seconds noon =
      sys_days(std::chrono::year(2024) / 3 / 9) + std::chrono::hours(12);
  std::filesystem::last_write_time(walk.File(), std::chrono::file_clock::from_sys(noon));
  const TrialValues values = ReadTrialValues(walk.State(), {});
  EXPECT_EQ(values.File, walk.State().OpenC3dFileSpec);
  EXPECT_EQ(values.Date, "2024-03-09");
  EXPECT_EQ(values.Rate, 64);
}

TEST(TrialValues, DateOfAFileThatIsGoneIsUnknown) {
  tests::OpenedWalk walk = tests::Opened(TrialOfFourStrides());
  tests::TakeAway(walk.File());
  EXPECT_EQ(ReadTrialValues(walk.State(), {}).Date, "");
}

}  // namespace
