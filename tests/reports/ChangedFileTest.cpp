// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "c3d/ParameterSection.h"
#include "reports/NavigationTree.h"
#include "reports/ParameterReport.h"
#include "tests/TestTrials.h"

namespace {

using modAllPurpose::ReportOutput;
using modVantrel::FileState;

// Overwrites `old`, which `file` must hold, by `text` of the same length, in place.
void Overwrite(const std::filesystem::path& file, const std::string& old, const std::string& text) {
  const auto place = tests::ReadWholeFile(file).find(old);
  ASSERT_NE(place, std::string::npos);
  std::fstream changed(file, std::ios::in | std::ios::out | std::ios::binary);
  changed.seekp(static_cast<std::streamoff>(place));
  changed << text;
}

struct Walk {
  std::string Name;
  std::function<void(const FileState&, ReportOutput&)> Report;
};

void PrintTo(const Walk& walk, std::ostream* stream) { *stream << walk.Name; }

class ReportOfAChangedFile : public testing::TestWithParam<Walk> {};

TEST_P(ReportOfAChangedFile, ShowsWhatTheFileHoldsNow) {
  sample::TrialBuilder builder;
  builder.SetParam("NEAR", {"AAAA", {}, std::vector<std::int16_t>{1}, "", false, {}});
  tests::OpenedTrial trial(builder);
  ASSERT_EQ(trial.Result(), modVantrel::OpenResult::Success);
  const auto text = [&] {
    return tests::TextOf([&](auto& output) { GetParam().Report(trial.State(), output); });
  };
  const std::string before = text();
  Overwrite(trial.File(), "NEAR", "FAR!");
  Overwrite(trial.File(), "AAAA", "BBBB");
  const std::string after = text();
  EXPECT_NE(before.find("NEAR"), std::string::npos);
  EXPECT_EQ(after.find("NEAR"), std::string::npos) << after;
  EXPECT_EQ(after.find("AAAA"), std::string::npos) << after;
  EXPECT_NE(after.find("FAR!"), std::string::npos) << after;
}

// The group under the name that it has now.
std::string NameNow(const FileState& state) {
  return modVantrel::FindGroup(state, "NEAR").Id > 0 ? "NEAR" : "FAR!";
}

INSTANTIATE_TEST_SUITE_P(Walks, ReportOfAChangedFile,
                         testing::Values(Walk{"groups", reports::ShowAllGroups},
                                         Walk{"parameters", reports::ShowAllGroupsAndAllParams},
                                         Walk{"tree", reports::ShowTree},
                                         Walk{"group",
                                              [](const FileState& state, ReportOutput& output) {
                                                EXPECT_FALSE(reports::ShowMatchingGroupAndAllParams(
                                                                 state, NameNow(state), output)
                                                                 .IsRejected());
                                              }},
                                         Walk{"parameter",
                                              [](const FileState& state, ReportOutput& output) {
                                                const std::string group = NameNow(state);
                                                EXPECT_FALSE(
                                                    reports::ShowMatchingGroupAndMatchingParam(
                                                        state, group,
                                                        group == "NEAR" ? "AAAA" : "BBBB", output)
                                                        .IsRejected());
                                              }}),
                         [](const auto& walk) { return walk.param.Name; });

}  // namespace
