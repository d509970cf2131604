// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "gait/GcdCalcs.h"
#include "tests/GaitTrials.h"
#include "tests/OpenWithEvents.h"

namespace {

using namespace modVantrel;
using tests::ErrorNumberOf;
using tests::Moving;
using tests::OpenedWalk;
using tests::OpenWithEvents;
using tests::Standing;

using tests::kDivisionByZero;
using tests::kInputPastEndOfFile;
using tests::kSubscriptOutOfRange;

// The whole-frame trial with one label: X, Y and Z are the frame's number times 1, -2 and 0.5.
sample::TrialBuilder KneeTrial() {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LKneeAngles", Moving({0, 0, 0}, {1, -2, 0.5F}));
  return builder;
}

TEST(Normalized, CurveHasTheValuesOfTheFramesItFallsOn) {
  OpenedWalk walk = OpenWithEvents(KneeTrial());
  const NormalizedCurve curve = clsGcdCalcs(walk.State()).NormalizeLabelForStride("lkneeangles", 1);
  ASSERT_EQ(curve.Count(), 51);
  for (std::int32_t k = 1; k <= 51; ++k) {
    const auto frame = static_cast<float>(16 + k);
    EXPECT_EQ(curve[k].X, frame);
    EXPECT_EQ(curve[k].Y, -2 * frame);
    EXPECT_EQ(curve[k].Z, 0.5F * frame);
    EXPECT_EQ(curve[k].Time, (frame - 1) / 64);
  }
}

TEST(Normalized, CurveRunsFromStrikeToStrike) {
  OpenedWalk walk = OpenWithEvents(KneeTrial());
  const NormalizedCurve curve = clsGcdCalcs(walk.State()).NormalizeLabelForStride("LKneeAngles", 1);
  const StrideRecord& stride = walk.Gait().ValidStrides[1];
  EXPECT_EQ(curve[1].Time, stride.StartStrikeTime);
  EXPECT_EQ(curve[26].Time, 0.5F * (stride.StartStrikeTime + stride.StopStrikeTime));
  EXPECT_EQ(curve[51].Time, stride.StopStrikeTime);
}

TEST(Normalized, UnknownLabelGivesNoCurve) {
  OpenedWalk walk = OpenWithEvents(KneeTrial());
  EXPECT_TRUE(clsGcdCalcs(walk.State()).NormalizeLabelForStride("RKneeAngles", 1).IsEmpty());
}

TEST(Normalized, StrideOutsideTheListIsAnIndexError) {
  OpenedWalk walk = OpenWithEvents(KneeTrial());
  clsGcdCalcs calcs(walk.State());
  for (const std::int32_t index : {-1, 0, 2}) {
    EXPECT_EQ(ErrorNumberOf([&] { calcs.NormalizeLabelForStride("LKneeAngles", index); }),
              kSubscriptOutOfRange);
  }
}

TEST(Normalized, LabelIsReadOnceForAllStrides) {
  sample::TrialBuilder builder = KneeTrial();
  builder.AddPoint("RKneeAngles", Standing(1, 2, 3));
  OpenedWalk walk = OpenedWalk(builder.Build(), FindGaitEvents);
  clsGcdCalcs calcs(walk.State());
  const NormalizedCurve first = calcs.NormalizeLabelForStride("LKneeAngles", 1);
  std::filesystem::resize_file(walk.File(), 1024);
  EXPECT_EQ(calcs.NormalizeLabelForStride("LKneeAngles", 1)[7].X, first[7].X);
  EXPECT_EQ(calcs.NormalizeLabelForStride(" lkneeANGLES ", 1)[7].X, first[7].X)
      << "the same label however it is written";
  EXPECT_EQ(ErrorNumberOf([&] { calcs.NormalizeLabelForStride("RKneeAngles", 1); }),
            kInputPastEndOfFile);
}

TEST(Normalized, CutTrialIsAnError) {
  const sample::Trial whole = KneeTrial().Build();
  sample::Trial cut = whole;
  OpenedWalk walk(cut.TruncateTo(whole.Size() - 1), FindGaitEvents);
  EXPECT_EQ(
      ErrorNumberOf([&] { clsGcdCalcs(walk.State()).NormalizeLabelForStride("LKneeAngles", 1); }),
      kInputPastEndOfFile);
}

TEST(Normalized, TrialOfOneFrameIsAnIndexError) {
  OpenedWalk walk = OpenWithEvents(sample::TrialBuilder().Frames(1, 1));
  walk.State().GaitEvents.ValidStrides.Append({GaitSide::Left, 1, 0, 0, 0, 0, 1});
  EXPECT_EQ(ErrorNumberOf([&] { clsGcdCalcs(walk.State()).NormalizeLabelForStride("LTOE", 1); }),
            kSubscriptOutOfRange);
}

TEST(Normalized, FramesTooShortForAFloatsTimeAreADivisionByZero) {
  OpenedWalk walk = OpenWithEvents(sample::TrialBuilder().Frames(1, 10).Rate(100));
  walk.State().Header.PointFrameRate = 1e9F;
  walk.State().WalkStartTime = 100;
  walk.State().GaitEvents.ValidStrides.Append({GaitSide::Left, 1, 0, 0, 0, 0, 1});
  EXPECT_EQ(ErrorNumberOf([&] { clsGcdCalcs(walk.State()).NormalizeLabelForStride("LTOE", 1); }),
            kDivisionByZero);
}

TEST(CurvesOfLabel, AreThreeNamedValuesOfTheStride) {
  OpenedWalk walk = OpenWithEvents(KneeTrial());
  clsGcdCalcs calcs(walk.State());
  const NormalizedCurve points = calcs.NormalizeLabelForStride("LKneeAngles", 1);
  const std::vector<StrideCurve> curves = calcs.CurvesOfLabel("lkneeangles", 1);
  ASSERT_EQ(curves.size(), 3U);
  for (const StrideCurve& curve : curves) {
    EXPECT_EQ(curve.Label, "LKneeAngles") << "as the file spells it";
    EXPECT_EQ(curve.Side, GaitSide::Left);
    EXPECT_EQ(curve.Stride, 1);
    ASSERT_EQ(curve.Values.Count(), kNormalizedPoints);
    for (std::int32_t k = 1; k <= kNormalizedPoints; ++k) {
      EXPECT_EQ(curve.Values[k], ComponentOf(points[k], curve.Part));
    }
  }
  EXPECT_EQ(curves[0].Part, Component::X);
  EXPECT_EQ(curves[1].Part, Component::Y);
  EXPECT_EQ(curves[2].Part, Component::Z);
}

TEST(CurvesOfLabel, AreNoneWithoutTheLabel) {
  OpenedWalk walk = OpenWithEvents(KneeTrial());
  EXPECT_TRUE(clsGcdCalcs(walk.State()).CurvesOfLabel("LHipAngles", 1).empty());
}

}  // namespace
