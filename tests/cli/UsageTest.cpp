// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/TestTrials.h"
#include "tests/cli/ToolRun.h"

// What the tool says about its own use, and the command lines that it refuses.
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using tests::RunTool;
using tests::ToolResult;

void ExpectUsageError(const std::vector<std::string>& arguments, const std::string& reason) {
  const ToolResult result = RunTool(arguments);
  EXPECT_EQ(result.Status, 2);
  EXPECT_EQ(result.Out, "");
  EXPECT_THAT(result.Err, StartsWith("vantrel-report: "));
  EXPECT_THAT(result.Err, HasSubstr(reason));
  EXPECT_THAT(result.Err, HasSubstr("--help"));
}

TEST(Usage, NoArgumentsAreRefused) { ExpectUsageError({}, "REPORT is required"); }

TEST(Usage, AReportWithoutAFileIsRefused) { ExpectUsageError({"header"}, "FILE is required"); }

TEST(Usage, AnUnknownReportIsRefusedWithTheNamesThereAre) {
  ExpectUsageError({"headers", "x.c3d"}, "there is no report 'headers'; there are: header, ");
  ExpectUsageError({"HEADER", "x.c3d"}, "there is no report 'HEADER'");
  ExpectUsageError({"", "x.c3d"}, "there is no report ''");
}

TEST(Usage, AnUnknownOptionIsRefused) {
  ExpectUsageError({"--all", "headers", "x.c3d"}, "there is no option '--all'");
}

TEST(Usage, AnOptionWithoutItsValueIsRefused) {
  ExpectUsageError({"parameters", "x.c3d", "--group"}, "--group");
}

TEST(Usage, AParameterWithoutAGroupIsRefused) {
  ExpectUsageError({"--param", "LABELS", "parameters", "x.c3d"}, "--param requires --group");
}

TEST(Usage, VersionIsPrintedOnStandardOutput) {
  const ToolResult result = RunTool({"--version"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Out, "vantrel-report " VANTREL_VERSION "\n");
  EXPECT_EQ(result.Err, "");
}

TEST(Usage, HelpNamesOptionsPositionalsAndStatus) {
  const ToolResult result = RunTool({"--help"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Err, "");
  for (const std::string word :
       {"--group", "--param", "--label", "--version", "--help", "REPORT", "FILE", "Exit status"}) {
    EXPECT_THAT(result.Out, HasSubstr(word));
  }
  EXPECT_TRUE(result.Out.ends_with("\n")) << "the shell's prompt starts on a line of its own";
}

}  // namespace
