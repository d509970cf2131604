// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample/TrialBuilder.h"
#include "tests/GaitTrials.h"
#include "tests/cli/RunningTool.h"
#include "tests/cli/ToolInFolder.h"

// What names and labels can do to a terminal: nothing.
namespace {

using testing::HasSubstr;
using testing::Not;
using tests::RunningTool;
using tests::ToolInFolder;

const std::string kName = "a\x1B[31m\nb";

class OnATerminal : public testing::Test {
 protected:
  OnATerminal() {
    sample::TrialBuilder builder;
    builder.AddPoint("L\x1B[2J\n", tests::Standing(0, 0, 0));
    builder.Build().WriteTo(tool_ / (kName + ".c3d"));
    std::filesystem::copy(tool_ / tests::kSampleWalk, tool_ / "gcd");
    std::filesystem::rename(tool_ / "gcd", tool_ / (kName + " walk.c3d"));
  }

  std::string Shown(const std::vector<std::string>& arguments, RunningTool::Output output) const {
    RunningTool run(arguments, output, tool_.Path());
    run.Wait();
    return run.Out();
  }

  ToolInFolder tool_;
};

TEST_F(OnATerminal, ControlCharactersOfNamesAndLabelsStandAsEscapes) {
  const std::vector<std::string> report = {"labels", kName + ".c3d", kName + ".c3d"};
  const std::string shown = Shown(report, RunningTool::Output::Terminal);
  EXPECT_THAT(shown, HasSubstr("==> a\\x1B[31m\\nb.c3d <==\r\n"));
  EXPECT_THAT(shown, HasSubstr("L\\x1B[2J\\n"));
  EXPECT_THAT(shown, Not(HasSubstr("\x1B")));
  EXPECT_THAT(Shown(report, RunningTool::Output::File), HasSubstr("==> " + kName + ".c3d <==\n"))
      << "a program gets the name";
}

TEST_F(OnATerminal, NamesOfGcdFilesStandAsEscapes) {
  const std::vector<std::string> report = {"--overwrite", "gcd", kName + " walk.c3d"};
  const std::string shown = Shown(report, RunningTool::Output::Terminal);
  EXPECT_THAT(shown, HasSubstr("Output: a\\x1B[31m\\nb walk-L1.gcd\r\n"));
  EXPECT_THAT(shown, Not(HasSubstr("\x1B")));
  EXPECT_THAT(Shown(report, RunningTool::Output::File),
              HasSubstr("Output: " + kName + " walk-L1.gcd\n"));
}

TEST_F(OnATerminal, TablesKeepTheEndsOfTheirRows) {
  const std::vector<std::string> report = {"--format", "csv", "labels", kName + ".c3d"};
  const std::string shown = Shown(report, RunningTool::Output::Terminal);
  EXPECT_THAT(shown, HasSubstr("a\\x1B[31m\r\nb.c3d"));
  EXPECT_THAT(shown, Not(HasSubstr("\x1B")));
}

}  // namespace
