// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/visit/VisitWalks.h"
#include "visit/TrialCurves.h"

namespace {

using modVantrel::Component;
using modVantrel::GaitSide;
using tests::Opened;
using tests::OpenedWalk;
using tests::Standing;
using tests::TrialOfOneStride;
using visit::LabelCurves;

std::vector<LabelCurves> AllCurvesOf(const sample::TrialBuilder& builder) {
  OpenedWalk walk = Opened(builder);
  return visit::CurvesOfTrial(walk.State(), [](const std::string&) { return true; });
}

// A trial with a left and a right stride.
sample::TrialBuilder TrialOfBothSides() {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 81).Rate(64);
  for (const float frame : {2.0F, 42.0F}) {
    builder.AddEvent("Left", "Foot Strike", frame / 64);
    builder.AddEvent("Right", "Foot Off", (frame + 5) / 64);
  }
  for (const float frame : {22.0F, 62.0F}) {
    builder.AddEvent("Right", "Foot Strike", frame / 64);
    builder.AddEvent("Left", "Foot Off", (frame + 5) / 64);
  }
  return builder;
}

TEST(SideOfLabel, IsThatOfItsFirstLetterInEitherCase) {
  EXPECT_EQ(visit::SideOfLabel("LKneeAngles"), GaitSide::Left);
  EXPECT_EQ(visit::SideOfLabel("rtoe"), GaitSide::Right);
  EXPECT_EQ(visit::SideOfLabel(" LTOE"), GaitSide::Left) << "as a cut prefix may leave it";
  EXPECT_EQ(visit::SideOfLabel("SACR"), GaitSide::None);
  EXPECT_EQ(visit::SideOfLabel(""), GaitSide::None);
}

TEST(TrialCurves, LabelOfASideHasTheStridesOfThatSideAlone) {
  const auto labels = AllCurvesOf(TrialOfBothSides()
                                      .AddPoint("LHEE", Standing(1, 2, 3))
                                      .AddPoint("RHEE", Standing(4, 5, 6))
                                      .AddPoint("SACR", Standing(7, 8, 9)));
  ASSERT_EQ(labels.size(), 3U);
  EXPECT_EQ(labels[0].Left.Count(), 1);
  EXPECT_EQ(labels[0].Right.Count(), 0);
  EXPECT_EQ(labels[1].Left.Count(), 0);
  EXPECT_EQ(labels[1].Right.Count(), 1);
  EXPECT_EQ(labels[2].Left.Count(), 1);
  EXPECT_EQ(labels[2].Right.Count(), 1);
  EXPECT_FLOAT_EQ(static_cast<float>((*labels[1].Right.Mean(Component::Y))[25]), 5);
}

TEST(TrialCurves, CurveGoesFromTheFirstToTheClosingStrike) {
  // The instants of this stride are the frames 17 to 67, where the point is at ten times the frame.
  const auto labels =
      AllCurvesOf(TrialOfOneStride("Left").AddPoint("P", tests::Moving({0, 0, 0}, {10, 0, 0})));
  const auto mean = *labels.at(0).Left.Mean(Component::X);
  EXPECT_NEAR(mean[0], 170, 1e-3);
  EXPECT_NEAR(mean[25], 420, 1e-3);
  EXPECT_NEAR(mean[50], 670, 1e-3);
}

TEST(TrialCurves, CurveThatIsNotSeenThroughoutIsLeftOut) {
  const auto curves = [](std::int32_t frame) {
    return AllCurvesOf(TrialOfOneStride("Left").AddPoint("P", Standing(1, 2, 3)).NotSeen(1, frame))
        .at(0)
        .Left.Count();
  };
  EXPECT_EQ(curves(tests::kFirstStrikeFrame - 1), 1);
  EXPECT_EQ(curves(tests::kFirstStrikeFrame), 0);
  EXPECT_EQ(curves(tests::kClosingStrikeFrame), 0);
  EXPECT_EQ(curves(tests::kClosingStrikeFrame + 1), 1);
}

TEST(TrialCurves, GapOfOneLabelDoesNotTouchTheOthers) {
  const auto labels = AllCurvesOf(TrialOfOneStride("Left")
                                      .AddPoint("P", Standing(1, 2, 3))
                                      .AddPoint("Q", Standing(1, 2, 3))
                                      .NotSeen(1, 30));
  EXPECT_EQ(labels.at(0).Left.Count(), 0);
  EXPECT_EQ(labels.at(1).Left.Count(), 1);
}

TEST(TrialCurves, MissingCoordinateInsideTheStrideCountsAsNotSeen) {
  const auto missingIn = [](std::int32_t gap) {
    return AllCurvesOf(TrialOfOneStride("Left").AddPoint("P", [gap](std::int32_t frame) {
      const float z = frame == gap ? std::numeric_limits<float>::quiet_NaN() : 1.0F;
      return std::array{1.0F, 1.0F, z};
    }));
  };
  EXPECT_EQ(missingIn(40).at(0).Left.Count(), 0);
  const auto outside = missingIn(5);
  EXPECT_EQ(outside.at(0).Left.Count(), 1);
  EXPECT_TRUE(std::isnan((*outside.at(0).Left.Mean(Component::Z))[10]))
      << "the spline goes through all frames";
}

TEST(TrialCurves, EmptyLabelsAreLeftOutAndOfEqualOnesTheFirstStays) {
  const auto labels = AllCurvesOf(TrialOfOneStride("Left")
                                      .AddPoint("Hip", Standing(1, 0, 0))
                                      .AddPoint("", Standing(2, 0, 0))
                                      .AddPoint("HIP", Standing(3, 0, 0)));
  ASSERT_EQ(labels.size(), 1U);
  EXPECT_EQ(labels[0].Label, "Hip") << "as the file spells it";
  EXPECT_NEAR((*labels[0].Left.Mean(Component::X))[0], 1, 1e-6);
}

TEST(TrialCurves, UnitIsThatOfTheLabelsKind) {
  const auto labels =
      AllCurvesOf(TrialOfOneStride("Left")
                      .AddPoint("LKneeAngles", Standing(1, 0, 0))
                      .AddPoint("LHEE", Standing(1, 0, 0))
                      .SetParam("POINT", sample::TextParam("UNITS", "mm"))
                      .SetParam("POINT", sample::TextListParam("ANGLES", {"LKneeAngles"}))
                      .SetParam("POINT", sample::TextParam("ANGLE_UNITS", "deg")));
  EXPECT_EQ(labels.at(0).Unit, "deg");
  EXPECT_EQ(labels.at(1).Unit, "mm");
}

TEST(TrialCurves, UnitIsSpeltAsTheTableOfLabelsSpellsIt) {
  const std::string unit("m\0m\0", 4);
  const auto labels = AllCurvesOf(TrialOfOneStride("Left")
                                      .AddPoint("LHEE", Standing(1, 0, 0))
                                      .SetParam("POINT", sample::TextParam("UNITS", unit)));
  EXPECT_EQ(labels.at(0).Unit, unit.substr(0, 3));
}

TEST(TrialCurves, LabelsWithoutAStrideAreNamedAllTheSame) {
  const auto labels = AllCurvesOf(sample::TrialBuilder().AddPoint("LHEE", Standing(1, 0, 0)));
  ASSERT_EQ(labels.size(), 1U);
  EXPECT_EQ(labels[0].Left.Count(), 0);
}

TEST(TrialCurves, OnlyWantedLabelsAreRead) {
  OpenedWalk walk = Opened(TrialOfOneStride("Left")
                               .AddPoint("LHEE", Standing(1, 0, 0))
                               .AddPoint("lknee", Standing(1, 0, 0)));
  const auto labels =
      visit::CurvesOfTrial(walk.State(), [](const std::string& key) { return key == "LKNEE"; });
  ASSERT_EQ(labels.size(), 1U);
  EXPECT_EQ(labels[0].Label, "lknee");
}

}  // namespace
