// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "c3d/ParamIndex.h"
#include "reports/NavigationTree.h"
#include "reports/ParameterReport.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::ParamIndex;
using tests::ErrorNumberOf;
using tests::OpenedTrial;

TEST(ParamIndex, FindsGroupsAndTheirParametersInFileOrder) {
  OpenedTrial trial(sample::TrialBuilder().Order(sample::RecordOrder::ParamsBeforeGroups));
  const ParamIndex index(trial.State());
  ASSERT_EQ(index.Groups().size(), 2U);
  EXPECT_EQ(index.ParamsOf(1).size(), 5U);
  EXPECT_EQ(index.ParamsOf(2).size(), 4U);
  EXPECT_TRUE(index.ParamsOf(3).empty());
  EXPECT_LT(index.ParamsOf(2).back(), index.Groups().front());
  EXPECT_EQ(ErrorNumberOf([&] { index.RethrowFailure(); }), 0);
}

TEST(ParamIndex, KeepsWhatStandsInFrontOfAChainThatLeavesTheFile) {
  sample::Trial bytes = sample::TrialBuilder().Build();
  OpenedTrial trial(bytes);
  bytes.SetOffset(bytes.ParamPosition("ANALOG", "RATE"), 32000).WriteTo(trial.File());
  trial.State().C3dFileNumber.ForgetBuffer();
  const ParamIndex index(trial.State());
  EXPECT_EQ(index.Groups().size(), 2U);
  EXPECT_EQ(ErrorNumberOf([&] { index.RethrowFailure(); }), 62);
}

TEST(ParameterReport, PrintsTheFirstGroupBeforeAChainThatLeavesTheFileEndsIt) {
  sample::Trial bytes = sample::TrialBuilder().Build();
  OpenedTrial trial(bytes);
  bytes.SetOffset(bytes.ParamPosition("ANALOG", "RATE"), 32000).WriteTo(trial.File());
  trial.State().C3dFileNumber.ForgetBuffer();
  modAllPurpose::TextReport report;
  EXPECT_EQ(ErrorNumberOf([&] { reports::ShowAllGroupsAndAllParams(trial.State(), report); }), 62);
  EXPECT_TRUE(report.Text().starts_with("POINT\n  USED\n"));
  EXPECT_EQ(report.Text().find("ANALOG\n"), std::string::npos);
}

// Groups of four bytes each: a walk of the chain for every group would take minutes.
TEST(ParameterReport, ThirtyThousandGroupsArePrintedInOneWalk) {
  constexpr std::uint8_t kGroups = 250;
  constexpr int kTimes = 120;
  sample::TrialBuilder builder;
  builder.EditSection([](sample::SectionSpec& section) {
    for (int i = 0; i < kTimes * kGroups; ++i) section.Groups.push_back({"", 100, "", false, {}});
  });
  OpenedTrial trial(builder);
  ASSERT_EQ(trial.Result(), modVantrel::OpenResult::Success);
  modAllPurpose::TextReport report;
  reports::ShowAllGroupsAndAllParams(trial.State(), report);
  EXPECT_EQ(reports::FillTree(trial.State()).size(), 2U + kTimes * kGroups);
  EXPECT_GT(report.Text().size(), std::size_t{kTimes} * kGroups);
}

}  // namespace
