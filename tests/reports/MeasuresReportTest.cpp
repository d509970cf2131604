// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "reports/MeasuresReport.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using reports::ShowSingleValueStrikeOffMeasures;
using tests::ErrorNumberOf;
using tests::Moving;
using tests::OpenedWalk;
using tests::Standing;

using tests::kDivisionByZero;

std::string MeasuresReport(const FileState& state) {
  return tests::TextOf([&](auto& output) { ShowSingleValueStrikeOffMeasures(state, output); });
}

TEST(MeasuresReport, TrialWithoutStridesIsOneEmptyLine) {
  EXPECT_EQ(MeasuresReport(FileState()), "\n");
}

TEST(MeasuresReport, PrintsEachStride) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LTOE", Moving({}, {16, 12, 0})).AddPoint("RTOE", Standing(572, 604, 99));
  OpenedWalk walk(builder.Build(), FindGaitEvents);
  const std::string left =
      "    Stridetime:              0.78125\n"
      "    Cadence:                 1.28\n"
      "    StepTimePct:             50\n"
      "    OppositeFootOffPct:      10\n"
      "    OppositeFootStrikePct:   50\n"
      "    SameFootOffPct:          60\n"
      "    SingleSupportPct:        40\n"
      "    DoubleSupportPct:        20\n"
      "    StrideLength:            1005\n"
      "    StepLength:              502.5\n"
      "    Speed:                   1286.4\n"
      "    VideoRate:               64\n"
      "\n";
  EXPECT_EQ(MeasuresReport(walk.State()), "Left Side #1\n" + left + "\n");

  StrideRecord second = walk.Gait().ValidStrides[1];
  second.Number = 12;
  walk.State().GaitEvents.ValidStrides.Append(second);
  walk.State().GaitEvents.ValidStrideCount = 2;
  EXPECT_EQ(MeasuresReport(walk.State()),
            "Left Side #1\n" + left + "Left Side #12\n" + left + "\n");
}

TEST(MeasuresReport, KeepsWhatItHadWrittenBeforeAnError) {
  FileState state;
  state.Header.PointFrameRate = 120;
  state.GaitEvents.ValidStrides.Append({GaitSide::Left, 1, 0, 0.1F, 0.5F, 0.6F, 1});
  state.GaitEvents.ValidStrides.Append({GaitSide::Left, 2, 1, 1, 1, 1, 1});
  state.GaitEvents.ValidStrideCount = 2;
  modAllPurpose::TextReport output;
  EXPECT_EQ(ErrorNumberOf([&] { ShowSingleValueStrikeOffMeasures(state, output); }),
            kDivisionByZero);
  EXPECT_EQ(tests::LinesOf(output.Text()).size(), 14U) << "the first stride's lines";
}

}  // namespace
