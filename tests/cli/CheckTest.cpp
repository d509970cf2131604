// SPDX-License-Identifier: GPL-3.0-or-later

#include <rapidjson/document.h>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/cli/ToolInside.h"

namespace {

using testing::HasSubstr;
using tests::RunInside;
using tests::ToolResult;

class CheckTest : public testing::Test {
 protected:
  std::string Given(const std::string& name, const sample::Trial& trial) {
    trial.WriteTo(folder_ / name);
    return (folder_ / name).string();
  }
  std::string Missing() const { return (folder_ / "missing.c3d").string(); }

 private:
  tests::TemporaryFolder folder_;
};

TEST_F(CheckTest, WarningsLeaveTheStatusAlone) {
  const std::string file = Given("walk.c3d", sample::TrialBuilder().Build());
  const ToolResult run = RunInside({"check", file});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Err, "");
  EXPECT_THAT(run.Out, HasSubstr("\nwarning  events-none      EVENT:USED   The file has no"));
}

TEST_F(CheckTest, ErrorIsTheStatusAndStandsOnStandardOutput) {
  sample::Trial trial = sample::TrialBuilder().Build();
  const std::string bad = Given("bad.c3d", trial.SetByte(2, 0));
  const std::string good = Given("good.c3d", sample::TrialBuilder().Build());
  const ToolResult run = RunInside({"--format", "csv", "check", bad, good, Missing()});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "");
  EXPECT_THAT(run.Out, testing::StartsWith("file,severity,code,place,message\n" + bad +
                                           ",error,cannot-open,"));
  EXPECT_THAT(run.Out, HasSubstr("\n" + good + ",warning,"));
  EXPECT_THAT(run.Out, HasSubstr("\n" + Missing() + ",error,cannot-open,"));
}

TEST_F(CheckTest, SeveralTextsStandUnderTheNamesOfTheirFiles) {
  const std::string file = Given("walk.c3d", sample::TrialBuilder().Build());
  const ToolResult run = RunInside({"check", file, Missing()});
  EXPECT_THAT(run.Out, HasSubstr("==> " + file + " <==\n"));
  EXPECT_THAT(run.Out, HasSubstr("==> " + Missing() + " <==\nerror  "));
}

// The swapped foot of the trial's own values is compared with the summary of its strides.
TEST_F(CheckTest, ComparesTheFilesOwnValuesWithItsSummary) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.SetParam("ANALYSIS",
                   {"NAMES", {7, 1}, std::vector<std::string>{"Cadence"}, "", false, {}});
  builder.SetParam("ANALYSIS",
                   {"CONTEXTS", {4, 1}, std::vector<std::string>{"Left"}, "", false, {}});
  builder.SetParam("ANALYSIS", {"VALUES", {1}, std::vector<float>{60}, "", false, {}});
  rapidjson::Document document;
  document.Parse(
      RunInside({"--format", "json", "check", Given("walk.c3d", builder.Build())}).Out.c_str());
  ASSERT_TRUE(document.IsArray());
  bool found = false;
  for (const auto& finding : document.GetArray()) {
    if (std::string(finding["code"].GetString()) != "analysis-differs") continue;
    found = true;
    EXPECT_THAT(finding["message"].GetString(), HasSubstr("60"));
    EXPECT_THAT(finding["message"].GetString(), HasSubstr("153.6")) << "120 / 0.78125";
  }
  EXPECT_TRUE(found);
}

}  // namespace
