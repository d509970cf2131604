// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample/TrialBuilder.h"
#include "support/FileSystem.h"
#include "tests/TestTrials.h"
#include "tests/cli/ToolInside.h"

// Whole command lines inside this process: on the streams that it is given, the tool writes and
// ends as the program does.
namespace {

using tests::RunInside;
using tests::RunTool;
using tests::ToolResult;

class ToolInside : public testing::Test {
 protected:
  static void ExpectTheProgramsOwn(const std::vector<std::string>& arguments, int status) {
    const ToolResult inside = RunInside(arguments);
    const ToolResult program = RunTool(arguments);
    EXPECT_EQ(inside.Status, status);
    EXPECT_EQ(program.Status, status);
    EXPECT_EQ(inside.Out, program.Out);
    EXPECT_EQ(inside.Err, program.Err);
  }

  std::string Write(const std::string& name) {
    sample::TrialBuilder().Build().WriteTo(folder_ / name);
    return modAllPurpose::Utf8Path(folder_ / name);
  }

  tests::TemporaryFolder folder_;
  std::string trial_ = Write("trial.c3d");
};

TEST_F(ToolInside, PrintsAReport) {
  const ToolResult result = RunInside({"groups", trial_});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Out, "POINT\nANALOG\n\n\n\n");
  EXPECT_EQ(result.Err, "");
}

TEST_F(ToolInside, WritesAndEndsAsTheProgramDoes) {
  ExpectTheProgramsOwn({"header", trial_}, 0);
  ExpectTheProgramsOwn({"--help"}, 0);
  ExpectTheProgramsOwn({"groups", trial_, trial_ + "x", trial_}, 1);
  ExpectTheProgramsOwn({"headers", trial_}, 2);
}

TEST_F(ToolInside, ComplainsInOneLineWhateverANameHolds) {
  EXPECT_EQ(RunInside({"groups", "a\nvantrel-report: b\x1B[2J\u009B\xFF"}).Err,
            "vantrel-report: a\\nvantrel-report: b\\x1B[2J\\u009B\\xFF: "
            "File open error while attempting to open C3D file.\n");
  EXPECT_THAT(RunInside({"\x1B[2J\n", trial_}).Err,
              testing::StartsWith("vantrel-report: REPORT: there is no report '\\x1B[2J\\n'; "));
  EXPECT_THAT(RunInside({"--a\x1B", "groups", trial_}).Err,
              testing::StartsWith("vantrel-report: there is no option '--a\\x1B'\nTry '"));
}

TEST_F(ToolInside, OneRunLeavesNothingToTheNext) {
  const ToolResult first = RunInside({"--group", "POINT", "parameters", trial_});
  EXPECT_EQ(RunInside({"parameters", trial_, "missing.c3d"}).Status, 1);
  const ToolResult again = RunInside({"--group", "POINT", "parameters", trial_});
  EXPECT_EQ(again.Status, 0);
  EXPECT_EQ(again.Out, first.Out);
}

}  // namespace
