// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "reports/NormalizedReport.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using reports::ShowNormalized;
using tests::Moving;
using tests::OpenedWalk;
using tests::Standing;

// The whole-frame trial with one label that moves.
OpenedWalk OpenKneeTrial() {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LKneeAngles", Moving({0, 0, 0}, {1, -2, 0.5F}));
  return {builder.Build(), FindGaitEvents};
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
  OpenedWalk walk(sample::TrialBuilder().Build(), FindGaitEvents);
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
  OpenedWalk walk = OpenKneeTrial();
  StrideRecord right = walk.Gait().ValidStrides[1];
  right.Side = GaitSide::Right;
  right.Number = 7;
  walk.State().GaitEvents.ValidStrides.Append(right);
  walk.State().GaitEvents.ValidStrideCount = 2;
  const std::vector<std::string> lines = tests::LinesOf(Report(walk.State(), "LKneeAngles").Text);
  ASSERT_EQ(lines.size(), 2 * (5U + 51U + 1U) + 1U);
  EXPECT_EQ(lines[56], "");
  EXPECT_EQ(lines[57], "LKneeAngles  Right Side #7");
}

TEST(NormalizedReport, PrintsTheLabelAsItWasTyped) {
  OpenedWalk walk = OpenKneeTrial();
  const std::string report = Report(walk.State(), " lkneeangles ").Text;
  EXPECT_EQ(report.substr(0, report.find('\n')), " lkneeangles   Left Side #1");
}

}  // namespace
