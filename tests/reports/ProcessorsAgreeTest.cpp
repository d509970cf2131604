// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "c3d/C3dFormat.h"
#include "gait/EventExtraction.h"
#include "reports/ReportList.h"
#include "sample/SampleWalk.h"
#include "tests/GaitTrials.h"
#include "tests/reports/AllReports.h"

namespace {

using modVantrel::FindGaitEvents;
using sample::Storage;
using tests::OpenedWalk;

std::map<std::string, std::string> ReportsOfWalk(std::uint8_t processor, Storage storage) {
  sample::TrialBuilder walk = sample::SampleWalk();
  // At this scale the length of the walk fits 16 bits.
  walk.Scale(0.25F).Processor(processor).StoredAs(storage);
  OpenedWalk opened(walk.Build(), FindGaitEvents);
  EXPECT_EQ(opened.Result(), modVantrel::OpenResult::Success);
  EXPECT_EQ(opened.Gait().ValidStrideCount, 6);
  return tests::AllReportsOf(opened.State());
}

class ProcessorsAgree : public testing::TestWithParam<Storage> {};

INSTANTIATE_TEST_SUITE_P(Reports, ProcessorsAgree,
                         testing::Values(Storage::Integer, Storage::Single), [](const auto& form) {
                           return form.param == Storage::Integer ? "Integers" : "Singles";
                         });

TEST_P(ProcessorsAgree, IntelAndDecFileOfAWalkPrintTheSameCharacters) {
  const auto intel = ReportsOfWalk(modVantrel::kProcessorIntel, GetParam());
  const auto dec = ReportsOfWalk(modVantrel::kProcessorDec, GetParam());
  EXPECT_GT(intel.size(), 90U);
  ASSERT_EQ(intel.size(), dec.size());
  for (const auto& [name, text] : intel) {
    EXPECT_FALSE(text.empty()) << name;
    EXPECT_TRUE(text == dec.at(name)) << name;
  }
}

// What the tests run in place of every report must not lag behind the list.
TEST(AllReports, AreThoseOfOneTrialButTheTwoThatNameTheFileOrItsFormat) {
  const auto texts = ReportsOfWalk(modVantrel::kProcessorIntel, Storage::Integer);
  for (const reports::ReportInfo& report : reports::kReports) {
    if (report.Pools || report.ReadsAnyFile) continue;
    const std::string name(report.Name);
    const bool leftOut = name == "header" || name == "parameter-header";
    const bool isThere = std::ranges::any_of(texts, [&](const auto& entry) {
      return entry.first == name || entry.first.starts_with(name + ' ');
    });
    EXPECT_NE(isThere, leftOut) << name;
  }
}

}  // namespace
