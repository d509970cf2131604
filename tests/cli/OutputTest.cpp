// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/TestTrials.h"
#include "tests/cli/LongTrial.h"
#include "tests/cli/ToolRun.h"

// Long reports, and standard outputs that cannot take a report.
namespace {

using sample::TrialBuilder;
using tests::RunTool;
using tests::ToolResult;

class OutputTest : public testing::Test {
 protected:
  std::string Write(const std::string& name, const TrialBuilder& builder) {
    builder.Build().WriteTo(folder_ / name);
    return (folder_ / name).string();
  }

  tests::TemporaryFolder folder_;
  std::string short_ = Write("short.c3d", TrialBuilder());
  std::string long_ = Write("long.c3d", tests::LongTrial());
};

TEST_F(OutputTest, ALongReportArrivesWhole) {
  const ToolResult result = RunTool({"parameters", long_, "--group", "LONG"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_GT(result.Out.size(), 1000000U);
  EXPECT_TRUE(result.Out == tests::ReportOfLongGroup());
}

TEST_F(OutputTest, AClosedPipeEndsTheToolQuietly) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"groups", short_},
                                                    {"groups", short_, short_},
                                                    {"parameters", long_}}) {
    const ToolResult result = RunTool(arguments, {.ClosedPipe = true});
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Err, "");
  }
}

TEST_F(OutputTest, AClosedPipeIsMetBehindAFailedFileToo) {
  const ToolResult result =
      RunTool({"groups", (folder_ / "missing").string(), short_}, {.ClosedPipe = true});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(tests::LinesOf(result.Err).size(), 1U) << "the missing file alone is named";
}

TEST_F(OutputTest, HelpIntoAClosedPipeEndsQuietly) {
  const ToolResult result = RunTool({"--help"}, {.ClosedPipe = true});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Err, "");
}

TEST_F(OutputTest, AClosedStandardErrorKeepsNoReportBack) {
  const ToolResult result =
      RunTool({"labels", (folder_ / "missing.c3d").string(), short_}, {.ClosedErrorPipe = true});
  EXPECT_EQ(result.Status, 1);
  EXPECT_NE(result.Out.find("001  LTOE"), std::string::npos);
}

}  // namespace
