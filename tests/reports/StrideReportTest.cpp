// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "reports/StrideReport.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::FileState;
using modVantrel::GaitSide;

std::string StridesOf(const FileState& state) {
  return tests::TextOf([&](auto& output) { reports::ShowStrides(state, output); });
}

TEST(StrideReport, AlignsTheTimesOfEachStride) {
  FileState state;
  state.GaitEvents.ValidStrides.Append({GaitSide::Left, 1, 0.5F, 0.61F, 1.05F, 1.16F, 1.6F});
  state.GaitEvents.ValidStrides.Append({GaitSide::Right, 12, 10.5F, 10.61F, 11.05F, 11.16F, 11.6F});
  EXPECT_EQ(
      StridesOf(state),
      "side   number  start (s)  opposite foot off (s)  opposite foot strike (s)  foot off (s)  "
      "stop (s)\n"
      "Left        1      0.500                  0.610                     1.050         1.160  "
      "   1.600\n"
      "Right      12     10.500                 10.610                    11.050        11.160  "
      "  11.600\n");
}

TEST(StrideReport, SaysThatThereAreNone) {
  EXPECT_EQ(StridesOf(FileState()), "There are no valid strides.\n");
}

}  // namespace
