// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "sample/TrialBuilder.h"
#include "tests/TestTrials.h"
#include "tests/cli/LongTrial.h"
#include "tests/cli/ToolRun.h"

// A standard output that is always full; only a POSIX system has one.
namespace {

using tests::RunTool;
using tests::ToolResult;

class FullDisk : public testing::Test {
 protected:
  std::string Write(const std::string& name, const sample::TrialBuilder& builder) {
    builder.Build().WriteTo(folder_ / name);
    return (folder_ / name).string();
  }

  tests::TemporaryFolder folder_;
  std::string short_ = Write("short.c3d", sample::TrialBuilder());
  std::string long_ = Write("long.c3d", tests::LongTrial());
};

TEST_F(FullDisk, IsARunTimeErrorOfItsFile) {
  for (const std::string& file : {short_, long_}) {
    const ToolResult result = RunTool({"parameters", file}, {.Path = "/dev/full"});
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Err,
              fmt::format("vantrel-report: {}: Run-time error '61': Disk full\n", file));
  }
}

TEST_F(FullDisk, EndsATableAndIsNamedOnce) {
  for (const std::string format : {"csv", "json"}) {
    const ToolResult result =
        RunTool({"--format", format, "parameters", long_, short_, long_}, {.Path = "/dev/full"});
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Err, "vantrel-report: standard output: Run-time error '61': Disk full\n");
  }
}

TEST_F(FullDisk, IsNoSuccessOfHelpAndVersion) {
  for (const std::string option : {"--help", "--version"}) {
    const ToolResult result = RunTool({option}, {.Path = "/dev/full"});
    EXPECT_EQ(result.Status, 1) << option;
    EXPECT_EQ(result.Err, "vantrel-report: Run-time error '61': Disk full\n");
  }
}

}  // namespace
