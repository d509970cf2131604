#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "gait/GcdCalcs.h"
#include "gait/NormalizedReport.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using tests::ErrorNumberOf;
using tests::Moving;
using tests::OpenedWalk;
using tests::Standing;

constexpr int kSubscriptOutOfRange = 9;
constexpr int kDivisionByZero = 11;
constexpr int kInputPastEndOfFile = 62;

// The whole-frame trial with one label: X, Y and Z are the frame's number times 1, -2 and 0.5.
sample::TrialBuilder KneeTrial() {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LKneeAngles", Moving({0, 0, 0}, {1, -2, 0.5F}));
  return builder;
}

OpenedWalk Open(const sample::TrialBuilder& builder) { return {builder.Build(), FindGaitEvents}; }

TEST(Normalized, CurveHasTheValuesOfTheFramesItFallsOn) {
  OpenedWalk walk = Open(KneeTrial());
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
  OpenedWalk walk = Open(KneeTrial());
  const NormalizedCurve curve = clsGcdCalcs(walk.State()).NormalizeLabelForStride("LKneeAngles", 1);
  const StrideRecord& stride = walk.Gait().ValidStrides[1];
  EXPECT_EQ(curve[1].Time, stride.StartStrikeTime);
  EXPECT_EQ(curve[26].Time, 0.5F * (stride.StartStrikeTime + stride.StopStrikeTime));
  EXPECT_EQ(curve[51].Time, stride.StopStrikeTime);
}

TEST(Normalized, UnknownLabelGivesNoCurve) {
  OpenedWalk walk = Open(KneeTrial());
  EXPECT_TRUE(clsGcdCalcs(walk.State()).NormalizeLabelForStride("RKneeAngles", 1).IsEmpty());
}

TEST(Normalized, StrideOutsideTheListIsAnIndexError) {
  OpenedWalk walk = Open(KneeTrial());
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
  OpenedWalk walk = Open(sample::TrialBuilder().Frames(1, 1));
  walk.State().GaitEvents.ValidStrides.Append({kSideLeft, 1, 0, 0, 0, 0, 1});
  EXPECT_EQ(ErrorNumberOf([&] { clsGcdCalcs(walk.State()).NormalizeLabelForStride("LTOE", 1); }),
            kSubscriptOutOfRange);
}

TEST(Normalized, FramesTooShortForAFloatsTimeAreADivisionByZero) {
  OpenedWalk walk = Open(sample::TrialBuilder().Frames(1, 10).Rate(100));
  walk.State().Header.PointFrameRate = 1e9F;
  walk.State().WalkStartTime = 100;
  walk.State().GaitEvents.ValidStrides.Append({kSideLeft, 1, 0, 0, 0, 0, 1});
  EXPECT_EQ(ErrorNumberOf([&] { clsGcdCalcs(walk.State()).NormalizeLabelForStride("LTOE", 1); }),
            kDivisionByZero);
}

struct Outcome {
  modAllPurpose::ReportResult Result;
  bool Begun;
  std::string Text;
};

Outcome Report(const FileState& state, const std::string& label) {
  modAllPurpose::TextReport output;
  const auto result = ShowNormalized(state, label, output);
  return {result, output.Begun(), output.Text()};
}

TEST(NormalizedReport, UnknownLabelIsRejectedBeforeMissingStrides) {
  OpenedWalk walk = Open(sample::TrialBuilder());
  EXPECT_EQ(Report(walk.State(), "LHEE").Result.Text(), "point label not found");
  const Outcome outcome = Report(walk.State(), "LTOE");
  EXPECT_EQ(outcome.Result.Text(), "valid PIG events not found");
  EXPECT_FALSE(outcome.Begun) << "the pane is replaced, not cleared for a report";
  EXPECT_EQ(outcome.Text, "");
}

constexpr const char* kCurveHeading =
    "     (Frame#, Time, X, Y, Z [Sagittal{X or Y}, Coronal{X or Y}, Axial{Z} for angles OR "
    "side-to-side{X or Y}, forward-backward{X or Y}, vertical for points{Z}])";

TEST(NormalizedReport, StrideOfOneSecondFromTwoSecondsOn) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 400).Rate(100);
  builder.AddPoint("LKneeAngles", Standing(-5.25F, 123.5F, 0.00004F));
  tests::AddStrideEvents(builder, "Left", {2.0F, 2.1F, 2.5F, 2.6F, 3.0F});
  OpenedWalk walk = OpenedWalk(builder.Build(), FindGaitEvents);
  const std::vector<std::string> lines = tests::LinesOf(Report(walk.State(), "LKneeAngles").Text);
  ASSERT_EQ(lines.size(), 5U + 51U + 2U);
  EXPECT_EQ(lines[0], "LKneeAngles  Left Side #1");
  EXPECT_EQ(lines[1], "     Opposite foot off time:    02.1000");
  EXPECT_EQ(lines[2], "     Opposite foot strike time: 02.5000");
  EXPECT_EQ(lines[3], "     Same foot off time:        02.6000");
  EXPECT_EQ(lines[4], kCurveHeading);
  EXPECT_EQ(lines[5], "  00  02.0000  -05.2500  123.5000  00.0000");
  EXPECT_EQ(lines[6], "  01  02.0200  -05.2500  123.5000  00.0000");
  EXPECT_EQ(lines[30], "  25  02.5000  -05.2500  123.5000  00.0000");
  EXPECT_EQ(lines[55], "  50  03.0000  -05.2500  123.5000  00.0000");
  EXPECT_EQ(lines[56], "");
  EXPECT_EQ(lines[57], "");
}

TEST(NormalizedReport, EachStrideHasItsBlockAndAnEmptyLine) {
  OpenedWalk walk = Open(KneeTrial());
  StrideRecord right = walk.Gait().ValidStrides[1];
  right.Side = kSideRight;
  right.Number = 7;
  walk.State().GaitEvents.ValidStrides.Append(right);
  walk.State().GaitEvents.ValidStrideCount = 2;
  const std::vector<std::string> lines = tests::LinesOf(Report(walk.State(), "LKneeAngles").Text);
  ASSERT_EQ(lines.size(), 2 * (5U + 51U + 1U) + 1U);
  EXPECT_EQ(lines[56], "");
  EXPECT_EQ(lines[57], "LKneeAngles  Right Side #7");
}

TEST(NormalizedReport, PrintsTheLabelAsItWasTyped) {
  OpenedWalk walk = Open(KneeTrial());
  const std::string report = Report(walk.State(), " lkneeangles ").Text;
  EXPECT_EQ(report.substr(0, report.find('\n')), " lkneeangles   Left Side #1");
}

}  // namespace
