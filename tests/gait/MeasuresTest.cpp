// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "gait/GcdCalcs.h"
#include "support/NumberForms.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using modAllPurposeNumbers::GeneralForm;
using tests::ErrorNumberOf;
using tests::Moving;
using tests::OpenedWalk;
using tests::Standing;

using tests::kDivisionByZero;
using tests::kOverflow;
using tests::kSubscriptOutOfRange;

// The lengths' calibration: the float 1.005.
const double kCalibration{1.005F};

FileState StateWithStride(const StrideRecord& stride) {
  FileState state;
  state.GaitEvents.ValidStrides.Append(stride);
  state.GaitEvents.ValidStrideCount = 1;
  state.Header.PointFrameRate = 120;
  return state;
}

SingleValueMeasures MeasuresOf(const FileState& state) {
  return clsGcdCalcs(state).CalcSingleValueMeasures(1);
}

// The measures of the whole-frame trial whose left toe moves by `step` a frame, so that its stride
// displaces it by 50 steps, and whose right toe stands where the left one starts the stride plus
// `ahead`.
SingleValueMeasures MeasuresOfToes(const std::array<float, 3>& step,
                                   const std::array<float, 3>& ahead) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LTOE", Moving({5, 6, 7}, step))
      .AddPoint("RTOE", Standing(5 + 17 * step[0] + ahead[0], 6 + 17 * step[1] + ahead[1],
                                 7 + 17 * step[2] + ahead[2]));
  OpenedWalk walk(builder.Build(), FindGaitEvents);
  return MeasuresOf(walk.State());
}

TEST(Measures, TimingOfAStrideOfTwelveTenthsOfASecond) {
  const SingleValueMeasures measures = MeasuresOf(
      StateWithStride({GaitSide::Left, 3, 0, 0.12F * 1.2F, 0.5F * 1.2F, 0.62F * 1.2F, 1.2F}));
  EXPECT_EQ(measures.Side, GaitSide::Left);
  EXPECT_EQ(measures.Number, 3);
  EXPECT_EQ(GeneralForm(measures.StrideTime), "1.2");
  EXPECT_EQ(GeneralForm(measures.Cadence), "0.8333333") << "strides per second";
  EXPECT_FLOAT_EQ(measures.OppositeFootOffPct, 12);
  EXPECT_FLOAT_EQ(measures.OppositeFootStrikePct, 50);
  EXPECT_FLOAT_EQ(measures.SameFootOffPct, 62);
  EXPECT_FLOAT_EQ(measures.StepTimePct, 50);
  EXPECT_FLOAT_EQ(measures.SingleSupportPct, 38);
  EXPECT_FLOAT_EQ(measures.DoubleSupportPct, 24);
  EXPECT_EQ(measures.VideoRate, 120);
}

TEST(Measures, StepTimeIsFromTheOppositeStrikeToTheClosingStrike) {
  const SingleValueMeasures measures =
      MeasuresOf(StateWithStride({GaitSide::Right, 1, 1, 1.125F, 1.75F, 1.875F, 2}));
  EXPECT_EQ(measures.StepTimePct, 25.0F);
  EXPECT_EQ(measures.OppositeFootStrikePct, 75.0F);
}

TEST(Measures, LengthsAreThoseOfTheFloorPlaneEnlargedByHalfAPercent) {
  const SingleValueMeasures measures = MeasuresOfToes({16, 12, 100}, {300, 400, 900});
  EXPECT_EQ(measures.StrideLength, static_cast<float>(1000 * kCalibration));
  EXPECT_EQ(measures.StepLength, static_cast<float>(500 * kCalibration));
  EXPECT_EQ(measures.Speed, static_cast<float>(double{measures.StrideLength} / 0.78125));
}

TEST(Measures, DirectionOfWalkingDoesNotMatter) {
  const SingleValueMeasures there = MeasuresOfToes({16, 12, 0}, {300, 400, 0});
  const SingleValueMeasures back = MeasuresOfToes({-16, -12, 0}, {-300, -400, 0});
  EXPECT_EQ(there.StrideLength, back.StrideLength);
  EXPECT_EQ(there.StepLength, back.StepLength);
  EXPECT_EQ(there.ProgressionAxis, back.ProgressionAxis);
}

TEST(Measures, ProgressionAxisIsTheOneOfTheLargerDisplacement) {
  EXPECT_EQ(MeasuresOfToes({16, 12, 0}, {}).ProgressionAxis, WalkAxis::X);
  EXPECT_EQ(MeasuresOfToes({12, 16, 0}, {}).ProgressionAxis, WalkAxis::Y);
  EXPECT_EQ(MeasuresOfToes({-12, 16, 100}, {}).ProgressionAxis, WalkAxis::Y);
  EXPECT_EQ(MeasuresOfToes({3, -4, 0}, {}).ProgressionAxis, WalkAxis::Y);
}

TEST(Measures, EqualDisplacementsCountAsX) {
  EXPECT_EQ(MeasuresOfToes({16, 16, 0}, {}).ProgressionAxis, WalkAxis::X);
  EXPECT_EQ(MeasuresOfToes({16, -16, 0}, {}).ProgressionAxis, WalkAxis::X);
  EXPECT_EQ(MeasuresOfToes({0, 0, 9}, {}).ProgressionAxis, WalkAxis::X);
}

TEST(Measures, RightStrideStepsFromTheRightToeToTheLeft) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 81).Rate(64);
  tests::AddStrideEvents(builder, "Right", tests::kWholeFrameStride);
  // At the first strike the right toe is at 10 * 17; the left one then stands 330 ahead of that.
  builder.AddPoint("LTOE", Standing(500, 0, 0)).AddPoint("RTOE", Moving({0, 0, 0}, {10, 0, 0}));
  OpenedWalk walk(builder.Build(), FindGaitEvents);
  const SingleValueMeasures measures = MeasuresOf(walk.State());
  EXPECT_EQ(measures.Side, GaitSide::Right);
  EXPECT_EQ(measures.StrideLength, static_cast<float>(500 * kCalibration));
  EXPECT_EQ(measures.StepLength, static_cast<float>(330 * kCalibration));
}

TEST(Measures, OneToeMarkerAloneGivesNoLengths) {
  for (const std::string toe : {"LTOE", "RTOE"}) {
    sample::TrialBuilder builder = tests::WholeFrameTrial();
    builder.AddPoint(toe, Moving({}, {16, 12, 0}));
    OpenedWalk walk(builder.Build(), FindGaitEvents);
    const SingleValueMeasures measures = MeasuresOf(walk.State());
    EXPECT_EQ(measures.StrideLength, 0.0F) << toe;
    EXPECT_EQ(measures.StepLength, 0.0F);
    EXPECT_EQ(measures.Speed, 0.0F);
    EXPECT_EQ(measures.ProgressionAxis, WalkAxis::None);
    EXPECT_EQ(measures.StrideTime, 0.78125F) << "the timing is there";
  }
}

TEST(Measures, MissingToeSampleGivesNoNumberAndNoError) {
  const SingleValueMeasures measures = MeasuresOfToes({16, 12, 0}, {std::nanf(""), 0, 0});
  EXPECT_TRUE(std::isnan(measures.StepLength));
  EXPECT_FALSE(std::isnan(measures.StrideLength));
}

TEST(Measures, HeightOfTheToesPlaysNoPart) {
  const auto wild = [](std::int32_t frame) {
    return std::array{static_cast<float>(frame), 0.0F, frame % 2 == 0 ? 3e38F : -3e38F};
  };
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LTOE", wild).AddPoint("RTOE", wild);
  OpenedWalk walk(builder.Build(), FindGaitEvents);
  EXPECT_FLOAT_EQ(MeasuresOf(walk.State()).StrideLength, 50.0F * 1.005F)
      << "a curve through these heights would overflow";
}

TEST(Measures, StrideOfNoDurationIsADivisionByZero) {
  EXPECT_EQ(ErrorNumberOf([] {
              MeasuresOf(StateWithStride({GaitSide::Left, 1, 1, 1, 1, 1, 1}));
            }),
            kDivisionByZero);
}

TEST(Measures, CadenceBeyondAFloatIsAnOverflow) {
  EXPECT_EQ(ErrorNumberOf([] {
              MeasuresOf(StateWithStride({GaitSide::Left, 1, 0, 0, 0, 0, 1e-40F}));
            }),
            kOverflow);
}

TEST(Measures, StrideWithoutASideIsAnIndexErrorWhereThereAreToes) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LTOE", Standing(0, 0, 0)).AddPoint("RTOE", Standing(0, 0, 0));
  OpenedWalk walk(builder.Build(), FindGaitEvents);
  for (const std::int32_t side : {-1, 0, 3}) {
    walk.State().GaitEvents.ValidStrides[1].Side = static_cast<GaitSide>(side);
    EXPECT_EQ(ErrorNumberOf([&] { MeasuresOf(walk.State()); }), kSubscriptOutOfRange) << side;
  }
}

TEST(Measures, StrideWithoutASideHasItsTimingWhereThereAreNoToes) {
  const SingleValueMeasures measures =
      MeasuresOf(StateWithStride({GaitSide::None, 1, 0, 0.1F, 0.5F, 0.6F, 1}));
  EXPECT_EQ(measures.Cadence, 1.0F);
}

TEST(Measures, StrideOutsideTheListIsAnIndexError) {
  const FileState state = StateWithStride({GaitSide::Left, 1, 0, 0.1F, 0.5F, 0.6F, 1});
  clsGcdCalcs calcs(state);
  for (const std::int32_t index : {-1, 0, 2}) {
    EXPECT_EQ(ErrorNumberOf([&] { calcs.CalcSingleValueMeasures(index); }), kSubscriptOutOfRange);
  }
}

const MeasureSpec& MeasureNamed(std::string_view name) {
  return *std::ranges::find(MeasureTable(), name, &MeasureSpec::Name);
}

TEST(MeasureTable, TakesEachValueFromItsField) {
  SingleValueMeasures measures;
  measures.ProgressionAxis = WalkAxis::Y;
  measures.StrideTime = 1.25F;
  measures.StepLength = 600;
  measures.Speed = 1200;
  EXPECT_EQ(MeasureTable().size(), 13U);
  EXPECT_EQ(MeasureNamed("StrideTime").ValueOf(measures), 1.25F);
  EXPECT_EQ(MeasureNamed("StepLength").ValueOf(measures), 600.0F);
  EXPECT_EQ(MeasureNamed("Speed").ValueOf(measures), 1200.0F);
  EXPECT_EQ(MeasureNamed("ProgressionAxis").ValueOf(measures), 2.0F);
}

TEST(MeasureTable, NamesTheUnitsOfTheTrial) {
  const auto unit = [](std::string_view name) { return UnitText(MeasureNamed(name).Unit, "cm"); };
  EXPECT_EQ(unit("StrideTime"), "s");
  EXPECT_EQ(unit("Cadence"), "1/s");
  EXPECT_EQ(unit("DoubleSupportPct"), "%");
  EXPECT_EQ(unit("StrideLength"), "cm");
  EXPECT_EQ(unit("Speed"), "cm/s");
  EXPECT_EQ(unit("VideoRate"), "Hz");
  EXPECT_EQ(unit("ProgressionAxis"), "");
  EXPECT_EQ(UnitText(MeasureUnit::LengthPerSecond, ""), "") << "the trial names no unit";
}

}  // namespace
