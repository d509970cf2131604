// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "tests/visit/VisitWalks.h"
#include "visit/GaitMeasures.h"

namespace {

using modVantrel::GaitSide;
using tests::Moving;
using tests::Opened;
using tests::OpenedWalk;
using tests::Standing;
using tests::TrialOfOneStride;
using visit::GaitMeasures;

constexpr double kNear = 1e-6;

// Where a foot is on the floor, and how far it goes in a frame.
using Floor = std::array<float, 2>;

// A walk of one left stride, 50 frames or 0.78125 s long. The own toe goes on by `step` a frame
// from (7, 9) at its first strike; the opposite toe stands at `ahead` from there.
sample::TrialBuilder SteppedWalk(const Floor& step, const Floor& ahead) {
  constexpr auto kFirst = static_cast<float>(tests::kFirstStrikeFrame);
  sample::TrialBuilder builder = TrialOfOneStride("Left");
  builder
      .AddPoint("LTOE",
                Moving({7 - kFirst * step[0], 9 - kFirst * step[1], 0}, {step[0], step[1], 0}))
      .AddPoint("RTOE", Standing(7 + ahead[0], 9 + ahead[1], 30));
  return builder;
}

GaitMeasures MeasuresOf(const sample::TrialBuilder& builder) {
  OpenedWalk walk = Opened(builder);
  const auto strides = visit::MeasuresOfStrides(walk.State());
  EXPECT_EQ(strides.size(), 1U);
  return strides.empty() ? GaitMeasures() : strides.front();
}

void ExpectLengths(const GaitMeasures& measures, double stride, double step, double width) {
  ASSERT_TRUE(measures.StrideLength && measures.StepLength && measures.StepWidth);
  EXPECT_NEAR(*measures.StrideLength, stride, kNear);
  EXPECT_NEAR(*measures.StepLength, step, kNear);
  EXPECT_NEAR(*measures.StepWidth, width, kNear);
  ASSERT_TRUE(measures.WalkingSpeed);
  EXPECT_NEAR(*measures.WalkingSpeed, stride / 0.78125, kNear);
}

void ExpectNoLengths(const GaitMeasures& measures) {
  EXPECT_FALSE(measures.StrideLength);
  EXPECT_FALSE(measures.StepLength);
  EXPECT_FALSE(measures.StepWidth);
  EXPECT_FALSE(measures.WalkingSpeed);
  EXPECT_TRUE(measures.StrideTime) << "times do not depend on the markers";
  EXPECT_TRUE(measures.DoubleSupport);
}

TEST(GaitMeasures, TimesOfAStrideOfFiftyFrames) {
  // Strikes at frames 16, 41 (opposite) and 66 of 64 a second, offs at 21 (opposite) and 46.
  const GaitMeasures measures = MeasuresOf(TrialOfOneStride("Left"));
  EXPECT_EQ(measures.Side, GaitSide::Left);
  EXPECT_EQ(measures.StrideTime, 50.0 / 64);
  EXPECT_EQ(measures.Cadence, 153.6) << "two steps in 50/64 s";
  EXPECT_EQ(measures.StepTime, 25.0 / 64);
  EXPECT_EQ(measures.OppositeFootOff, 10);
  EXPECT_EQ(measures.OppositeFootContact, 50);
  EXPECT_EQ(measures.FootOff, 60);
  EXPECT_EQ(measures.SingleSupport, 40) << "opposite foot off to opposite strike";
  EXPECT_EQ(measures.DoubleSupport, 20) << "10 % at the first strike and 10 % at the opposite one";
}

TEST(GaitMeasures, StepTimeIsThatOfTheStepThatEndsWithTheOwnStrike) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 81).Rate(64);
  tests::AddStrideEvents(builder, "Right", {0.25F, 0.375F, 0.75F, 0.875F, 1.0F});
  const GaitMeasures measures = MeasuresOf(builder);
  EXPECT_EQ(measures.Side, GaitSide::Right);
  EXPECT_EQ(measures.StepTime, 0.25);
}

TEST(GaitMeasures, WalkAlongXGivesLengthsWithoutEnlargement) {
  // 50 frames of 24 mm; the opposite foot lands 900 mm ahead, 120 mm to the side.
  ExpectLengths(MeasuresOf(SteppedWalk({24, 0}, {900, 120})), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, WalkAlongYGivesTheSameLengths) {
  ExpectLengths(MeasuresOf(SteppedWalk({0, 24}, {-120, 900})), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, WalkBackwardsAlongTheAxesGivesTheSameLengths) {
  ExpectLengths(MeasuresOf(SteppedWalk({-24, 0}, {-900, 120})), 1.2, 0.3, 0.12);
  ExpectLengths(MeasuresOf(SteppedWalk({0, -24}, {120, -900})), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, DiagonalWalkIsMeasuredAlongAndAcrossItsOwnDirection) {
  // The direction is (0.6, 0.8); 900 along it and 120 across, which is (-0.8, 0.6), make
  // (540 - 96, 720 + 72).
  ExpectLengths(MeasuresOf(SteppedWalk({14.4F, 19.2F}, {444, 792})), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, StepWidthIsADistanceOnEitherSideOfTheLine) {
  ExpectLengths(MeasuresOf(SteppedWalk({24, 0}, {900, -120})), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, StepIsNegativeWhereTheOwnFootLandsBehindTheOther) {
  ExpectLengths(MeasuresOf(SteppedWalk({24, 0}, {1300, 120})), 1.2, -0.1, 0.12);
}

TEST(GaitMeasures, OppositeToeIsTakenAtTheOppositeStrike) {
  // The opposite toe goes along with 24 mm a frame too, so at the opposite strike, 25 frames on, it
  // is 600 mm ahead of where it was.
  sample::TrialBuilder builder = TrialOfOneStride("Left");
  builder.AddPoint("LTOE", Moving({0, 0, 0}, {24, 0, 0}))
      .AddPoint("RTOE", Moving({0, 100, 0}, {24, 0, 0}));
  ExpectLengths(MeasuresOf(builder), 1.2, 0.6, 0.1);
}

TEST(GaitMeasures, RightStrideTakesTheRightToeAsItsOwn) {
  sample::TrialBuilder builder = TrialOfOneStride("Right");
  builder.AddPoint("LTOE", Standing(17 * 24 + 900, 120, 0))
      .AddPoint("RTOE", Moving({0, 0, 0}, {24, 0, 0}));
  ExpectLengths(MeasuresOf(builder), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, HeightOfTheToesDoesNotCount) {
  sample::TrialBuilder builder = TrialOfOneStride("Left");
  builder.AddPoint("LTOE", Moving({0, 0, 500}, {24, 0, 40}))
      .AddPoint("RTOE", Standing(17 * 24 + 900, 120, -2000));
  ExpectLengths(MeasuresOf(builder), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, TreadmillHasTimesButNoLengths) {
  ExpectNoLengths(MeasuresOf(SteppedWalk({1.98F, 0}, {30, 120})));  // 99 mm
  ExpectNoLengths(MeasuresOf(SteppedWalk({0, 0}, {30, 120})));
  ExpectLengths(MeasuresOf(SteppedWalk({2.02F, 0}, {30, 120})), 0.101, 0.071, 0.12);
}

TEST(GaitMeasures, TreadmillIsToldByMetresNotByTheFilesUnit) {
  sample::TrialBuilder builder = SteppedWalk({0.02F, 0}, {0.9F, 0.12F});
  builder.SetParam("POINT", sample::TextParam("UNITS", "m"));
  ExpectLengths(MeasuresOf(builder), 1.0, 0.1, 0.12);
}

TEST(GaitMeasures, WithoutBothToeMarkersThereAreNoLengths) {
  const auto only = [](const std::string& label) {
    sample::TrialBuilder builder = TrialOfOneStride("Left");
    return builder.AddPoint(label, Moving({0, 0, 0}, {24, 0, 0}));
  };
  ExpectNoLengths(MeasuresOf(only("LTOE")));
  ExpectNoLengths(MeasuresOf(only("RTOE")));
  ExpectNoLengths(MeasuresOf(only("SACR")));
}

TEST(GaitMeasures, ToeThatIsNotSeenAtAStrikeLeavesTheLengthsOut) {
  constexpr std::size_t kOwn = 1;
  constexpr std::size_t kOpposite = 2;
  const auto walk = [] { return SteppedWalk({24, 0}, {900, 120}); };
  ExpectNoLengths(MeasuresOf(walk().NotSeen(kOwn, tests::kFirstStrikeFrame)));
  ExpectNoLengths(MeasuresOf(walk().NotSeen(kOwn, tests::kClosingStrikeFrame)));
  ExpectNoLengths(MeasuresOf(walk().NotSeen(kOpposite, tests::kOppositeStrikeFrame)));
}

TEST(GaitMeasures, ToeThatIsNotSeenElsewhereDoesNotMatter) {
  constexpr std::size_t kOwn = 1;
  constexpr std::size_t kOpposite = 2;
  sample::TrialBuilder builder = SteppedWalk({24, 0}, {900, 120});
  builder.NotSeen(kOwn, tests::kFirstStrikeFrame - 1)
      .NotSeen(kOwn, tests::kFirstStrikeFrame + 1)
      .NotSeen(kOwn, tests::kOppositeStrikeFrame)
      .NotSeen(kOwn, tests::kClosingStrikeFrame + 1)
      .NotSeen(kOpposite, tests::kFirstStrikeFrame)
      .NotSeen(kOpposite, tests::kClosingStrikeFrame);
  ExpectLengths(MeasuresOf(builder), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, ToeWithoutANumberSomewhereHasNoPlaceAtItsStrikes) {
  sample::TrialBuilder builder = TrialOfOneStride("Left");
  builder
      .AddPoint("LTOE",
                [](std::int32_t frame) {
                  const float x = frame == 3 ? std::numeric_limits<float>::quiet_NaN()
                                             : 24 * static_cast<float>(frame);
                  return std::array{x, 0.0F, 0.0F};
                })
      .AddPoint("RTOE", Standing(900, 120, 0));
  ExpectNoLengths(MeasuresOf(builder));
}

TEST(GaitMeasures, UnitsOfPositionsBecomeMetres) {
  const auto metres = [](const std::string& unit) {
    sample::TrialBuilder builder;
    builder.SetParam("POINT", sample::TextParam("UNITS", unit));
    OpenedWalk walk = Opened(builder);
    return visit::MetresPerUnit(walk.State());
  };
  EXPECT_EQ(metres("m"), 1);
  EXPECT_EQ(metres("M "), 1);
  EXPECT_EQ(metres("cm"), 0.01);
  EXPECT_EQ(metres("Cm"), 0.01);
  EXPECT_EQ(metres(std::string("cm\0\0", 4)), 0.01);
  EXPECT_EQ(metres(std::string("m\0 \0", 4)), 1);
  EXPECT_EQ(metres("mm"), 0.001);
  EXPECT_EQ(metres("MM"), 0.001);
  EXPECT_EQ(metres("inch"), 0.001) << "not known";
  EXPECT_EQ(metres(""), 0.001);
  OpenedWalk without = Opened(sample::TrialBuilder().DropParam("POINT", "UNITS"));
  EXPECT_EQ(visit::MetresPerUnit(without.State()), 0.001) << "missing";
}

TEST(GaitMeasures, CentimetresGiveTheSameLengths) {
  sample::TrialBuilder builder = SteppedWalk({2.4F, 0}, {90, 12});
  builder.SetParam("POINT", sample::TextParam("UNITS", "cm"));
  ExpectLengths(MeasuresOf(builder), 1.2, 0.3, 0.12);
}

TEST(GaitMeasures, TrialWithoutStridesHasNone) {
  OpenedWalk walk = Opened(sample::TrialBuilder());
  EXPECT_TRUE(visit::MeasuresOfStrides(walk.State()).empty());
}

TEST(GaitMeasures, TableNamesTwelveMeasuresWithTheirUnits) {
  std::string names;
  for (const auto& measure : visit::GaitMeasureTable()) {
    names += std::string(measure.Name) + " " + std::string(measure.Unit) + "\n";
  }
  EXPECT_EQ(names,
            "walking_speed m/s\ncadence steps/min\nstride_time s\nstep_time s\nstride_length m\n"
            "step_length m\nstep_width m\nfoot_off %\nopposite_foot_off %\n"
            "opposite_foot_contact %\nsingle_support %\ndouble_support %\n");
}

}  // namespace
