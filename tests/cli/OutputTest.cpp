#include <cstdint>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/TestTrials.h"
#include "tests/cli/ToolRun.h"

// Long reports, and standard outputs that cannot take a report.
namespace {

using sample::TrialBuilder;
using tests::RunTool;
using tests::ToolResult;

constexpr int kLongParams = 120;
constexpr int kValuesOfEach = 250;

// The parameters report of this trial is more than a megabyte, handed over in several pieces.
TrialBuilder LongTrial() {
  TrialBuilder builder;
  for (int i = 1; i <= kLongParams; ++i) {
    builder.SetParam("LONG", {fmt::format("P{}", i),
                              {kValuesOfEach},
                              std::vector<std::uint8_t>(kValuesOfEach, 7),
                              "",
                              false,
                              {}});
  }
  return builder;
}

std::string ReportOfLongGroup() {
  std::string text = "LONG\n";
  for (int i = 1; i <= kLongParams; ++i) {
    text += fmt::format("  P{}\n", i);
    for (int k = 1; k <= kValuesOfEach; ++k) {
      text += fmt::format("    {:<30}7\n", fmt::format("byt({},1,1,1,1,1,1)", k));
    }
  }
  return text;
}

class OutputTest : public testing::Test {
 protected:
  std::string Write(const std::string& name, const TrialBuilder& builder) {
    builder.Build().WriteTo(folder_ / name);
    return (folder_ / name).string();
  }

  tests::TemporaryFolder folder_;
  std::string short_ = Write("short.c3d", TrialBuilder());
  std::string long_ = Write("long.c3d", LongTrial());
};

TEST_F(OutputTest, ALongReportArrivesWhole) {
  const ToolResult result = RunTool({"parameters", long_, "--group", "LONG"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_GT(result.Out.size(), 1000000U);
  EXPECT_TRUE(result.Out == ReportOfLongGroup());
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

TEST_F(OutputTest, AFullDiskIsARunTimeErrorOfItsFile) {
  for (const std::string& file : {short_, long_}) {
    const ToolResult result = RunTool({"parameters", file}, {.Path = "/dev/full"});
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Err,
              fmt::format("vantrel-report: {}: Run-time error '61': Disk full\n", file));
  }
}

TEST_F(OutputTest, HelpAndVersionThatCannotBePrintedAreNoSuccess) {
  for (const std::string option : {"--help", "--version"}) {
    const ToolResult result = RunTool({option}, {.Path = "/dev/full"});
    EXPECT_EQ(result.Status, 1) << option;
    EXPECT_EQ(result.Err, "vantrel-report: Run-time error '61': Disk full\n");
  }
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
