// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <rapidjson/document.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/cli/Archive.h"
#include "tests/cli/RunningTool.h"
#include "tests/cli/ToolRun.h"

// Large archives, and runs over them that meet what happens to runs.
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;
using tests::Archive;
using tests::RunningTool;
using tests::RunTool;
using tests::ToolResult;

// A tool that watches itself takes twenty times as long for each.
#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kFiles = 240;
#else
constexpr std::size_t kFiles = 3000;
#endif
constexpr std::size_t kNoTrials = kFiles / 12 * 2;
constexpr std::size_t kFailed = kNoTrials + kFiles / 12;  // those and the broken ones

// How long an interrupted run may take, on a busy machine too.
constexpr std::chrono::seconds kPatience{60};

// The files that are named on standard error, one a line.
std::size_t LinesIn(const std::string& text) {
  return static_cast<std::size_t>(std::ranges::count(text, '\n'));
}

class LargeArchive : public testing::Test {
 protected:
  static void SetUpTestSuite() { archive_ = new Archive(kFiles); }
  static void TearDownTestSuite() { delete archive_; }

  static std::vector<std::string> Command(const std::string& jobs, std::vector<std::string> rest) {
    std::vector<std::string> arguments = {"--recursive", "--jobs", jobs};
    arguments.insert(arguments.end(), rest.begin(), rest.end());
    arguments.push_back(archive_->Path());
    return arguments;
  }

  static inline Archive* archive_ = nullptr;
};

TEST_F(LargeArchive, GivesEqualBytesWithOneTwoAndEightJobs) {
  const std::vector<std::vector<std::string>> reports = {
      {"--format", "csv", "measures"},
      {"--format", "json", "summary"},
      {"--format", "csv", "--label", "LTOE", "normalized"},
      {"events"},
      {"--format", "json", "check"},
      {"--format", "csv", "norms"}};
  for (const auto& report : reports) {
    const ToolResult one = RunTool(Command("1", report));
    EXPECT_EQ(one.Status, 1);
    EXPECT_GE(LinesIn(one.Err), report.back() == "check" ? 0 : kNoTrials);
    for (const std::string jobs : {"2", "8"}) {
      const ToolResult several = RunTool(Command(jobs, report));
      EXPECT_EQ(several.Status, one.Status);
      EXPECT_TRUE(several.Out == one.Out) << report.back() << ' ' << jobs;
      EXPECT_TRUE(several.Err == one.Err) << report.back() << ' ' << jobs;
    }
  }
}

TEST_F(LargeArchive, EndsQuietlyWhereNobodyReadsOn) {
  for (const std::string jobs : {"1", "2", "8"}) {
    for (const std::string format : {"text", "csv", "json"}) {
      const ToolResult run =
          RunTool(Command(jobs, {"--format", format, "measures"}), {.ClosedPipe = true});
      EXPECT_LE(LinesIn(run.Err), kFailed) << "a file that failed in front of it may be named";
      EXPECT_THAT(run.Err, testing::Not(HasSubstr("standard output")));
    }
  }
}

TEST_F(LargeArchive, FilesThatVanishedSinceTheyWereListedAreNamedAndStopNoOther) {
  std::vector<std::string> arguments = {"--jobs", "4", "--format", "csv", "events"};
  for (int i = 0; i < 300; ++i) {
    if (i % 3 == 0) arguments.push_back("gone/" + std::to_string(i));
    arguments.push_back((*archive_ / "visit000/00000.c3d").string());
  }
  const ToolResult run = RunTool(arguments);
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(LinesIn(run.Err), 100U);
  EXPECT_THAT(run.Err, StartsWith("vantrel-report: gone/0: "));
  EXPECT_EQ(LinesIn(run.Out), 1 + 300 * 17U);
}

TEST_F(LargeArchive, ItsNamesMayBeNoUtf8) {
  const tests::TemporaryFolder folder;
  fs::create_directory(folder.Path() / "m\xFCller");
  for (const char* name : {"m\xFCller/a\xFF.c3d", "m\xFCller/b.c3d"}) {
    fs::copy_file(VANTREL_SAMPLE_WALK, folder.Path() / name);
  }
  std::ofstream(folder.Path() / "m\xFCller/\xFE.c3d") << "No trial.";
  const ToolResult text = RunTool({"--recursive", "--jobs", "2", "groups", "."}, {}, folder.Path());
  EXPECT_THAT(text.Out, StartsWith("==> ./m\xFCller/a\xFF.c3d <==\n"));
  EXPECT_THAT(text.Err, HasSubstr("./m\\xFCller/\\xFE.c3d: "));
  const ToolResult json =
      RunTool({"--recursive", "--jobs", "2", "--format", "json", "events", "."}, {}, folder.Path());
  EXPECT_FALSE(rapidjson::Document().Parse(json.Out.c_str()).HasParseError());
}

// What stands in a row is whole: as many commas as in the first.
void ExpectWholeLines(const std::string& csv) {
  ASSERT_FALSE(csv.empty());
  EXPECT_EQ(csv.back(), '\n');
  for (const std::string& line : tests::LinesOf(csv)) {
    ASSERT_EQ(std::ranges::count(line, ','), 5) << line;
  }
}

TEST_F(LargeArchive, InterruptedLeavesWholeRowsInAFile) {
  int interrupted = 0;
  for (int i = 0; i < 12; ++i) {
    RunningTool tool(Command(i % 2 == 0 ? "1" : "4", {"--format", "csv", "measures"}),
                     RunningTool::Output::File);
    tool.AwaitOutput(static_cast<std::size_t>(i) * 30 * kFiles + 1);
    const int signal = std::array{SIGINT, SIGTERM, SIGHUP}[static_cast<std::size_t>(i % 3)];
    tool.Send(signal);
    const int ended = tool.WaitAtMost(kPatience);
    EXPECT_TRUE(ended == 0 || ended == signal) << ended;
    if (ended != 0) ++interrupted;
    ExpectWholeLines(tool.Out());
  }
  EXPECT_GT(interrupted, 0);
}

TEST_F(LargeArchive, InterruptedLeavesAWholeArrayInAFile) {
  int interrupted = 0;
  for (int i = 0; i < 12; ++i) {
    RunningTool tool(Command(i % 2 == 0 ? "1" : "4", {"--format", "json", "measures"}),
                     RunningTool::Output::File);
    tool.AwaitOutput(static_cast<std::size_t>(i) * 60 * kFiles + 1);
    tool.Send(SIGINT);
    const int ended = tool.WaitAtMost(kPatience);
    EXPECT_TRUE(ended == 0 || ended == SIGINT) << ended;
    if (ended != 0) ++interrupted;
    const std::string out = tool.Out();
    EXPECT_FALSE(rapidjson::Document().Parse(out.c_str()).HasParseError())
        << out.substr(out.size() < 200 ? 0 : out.size() - 200);
  }
  EXPECT_GT(interrupted, 0);
}

TEST_F(LargeArchive, InterruptedBehindAReaderWhoDoesNotReadEndsAllTheSame) {
  for (const std::string jobs : {"1", "4"}) {
    for (const std::string format : {"text", "csv", "json"}) {
      RunningTool tool(Command(jobs, {"--format", format, "measures"}),
                       RunningTool::Output::UnreadPipe);
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
      tool.Send(SIGINT);
      EXPECT_EQ(tool.WaitAtMost(kPatience), SIGINT);
    }
  }
}

TEST_F(LargeArchive, InterruptedWhileNobodyReadsItsErrorsEndsAllTheSame) {
  std::vector<std::string> arguments = {"--jobs", "2", "header"};
  for (int i = 0; i < 3000; ++i) arguments.push_back("missing" + std::to_string(i));
  RunningTool tool(arguments, RunningTool::Output::FileAndUnreadErrors);
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  tool.Send(SIGTERM);
  EXPECT_EQ(tool.WaitAtMost(kPatience), SIGTERM);
}

TEST_F(LargeArchive, InterruptedBehindASlowReaderLeavesAWholeArray) {
  const std::string walk = (*archive_ / "visit000/00000.c3d").string();
  const std::vector<std::vector<std::string>> reports = {
      {"--jobs", "2", "--all-labels", "--format", "json", "point", walk, walk, walk, walk},
      {"--format", "json", "norms", walk, walk}};
  for (const auto& report : reports) {
    RunningTool tool(report, RunningTool::Output::UnreadPipe);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    tool.Send(SIGINT);
    const std::string out = tool.ReadSlowly();
    EXPECT_EQ(tool.WaitAtMost(kPatience), SIGINT) << report.back();
    EXPECT_FALSE(rapidjson::Document().Parse(out.c_str()).HasParseError())
        << out.substr(out.size() < 200 ? 0 : out.size() - 200);
  }
}

TEST_F(LargeArchive, InterruptedWhileGcdFilesAreWrittenLeavesWholeSets) {
  for (int i = 0; i < 10; ++i) {
    const tests::TemporaryFolder out;
    RunningTool tool(Command("4", {"--output-dir", out.Path().string(), "gcd"}),
                     RunningTool::Output::File);
    std::this_thread::sleep_for(std::chrono::milliseconds(30 * i));
    tool.Send(SIGTERM);
    EXPECT_EQ(tool.WaitAtMost(kPatience), SIGTERM);
    std::map<std::string, int> sets;
    for (const std::string& name : tests::NamesIn(out.Path())) {
      ASSERT_TRUE(name.ends_with(".gcd")) << "something temporary is left: " << name;
      ++sets[name.substr(0, 5)];
    }
    for (const auto& [trial, count] : sets) {
      EXPECT_TRUE(count == 6 || count == 1) << trial << ": " << count;
    }
  }
}

TEST_F(LargeArchive, KilledWhileGcdFilesAreReplacedLeavesOneFileAtMostBesideThem) {
  const tests::TemporaryFolder out;
  const auto command = Command("64", {"--output-dir", out.Path().string(), "--overwrite", "gcd"});
  RunningTool(command, RunningTool::Output::File).Wait();
  for (int i = 0; i < 40; ++i) {
    RunningTool tool(command, RunningTool::Output::File);
    std::this_thread::sleep_for(std::chrono::milliseconds(20 + 2 * i));
    tool.Send(SIGKILL);
    tool.WaitAtMost(kPatience);
    int left = 0;
    for (const std::string& name : tests::NamesIn(out.Path())) {
      if (name.ends_with(".gcd")) continue;
      ++left;
      fs::remove(out / name);
    }
    EXPECT_LE(left, 1);
  }
}

TEST_F(LargeArchive, ShowsItsProgressInOneRowOfANarrowTerminal) {
  RunningTool shown(Command("2", {"--format", "csv", "check"}),
                    RunningTool::Output::NarrowTerminal);
  shown.Wait();
  const std::string out = shown.Out();
  const std::string count = " of " + std::to_string(kFiles);
  int drawn = 0;
  for (std::size_t begin = out.find('\r'), end = 0; begin != std::string::npos; begin = end) {
    end = out.find_first_of("\r\n", begin + 1);
    const std::string line = out.substr(begin + 1, end - begin - 1);
    if (line.find(count) == std::string::npos) continue;
    ++drawn;
    ASSERT_LT(line.size(), 20U) << line;
  }
  EXPECT_GT(drawn, 0);
}

TEST_F(LargeArchive, ReachesATerminalWholeThatTakesWhatItCanAndNoMore) {
  const std::string walk = (*archive_ / "visit000/00000.c3d").string();
  const std::vector<std::string> report = {"--label", "LTOE", "--format", "json", "point", walk};
  RunningTool shown(report, RunningTool::Output::ImpatientTerminal);
  shown.Wait();
  std::string out = shown.Out();
  std::erase(out, '\r');
  EXPECT_EQ(out, RunTool(report).Out);
}

TEST_F(LargeArchive, ShowsItsProgressBehindWholeLinesOfTheSameTerminal) {
  for (const std::string report : {"parameters", "check"}) {
    RunningTool shown(Command("2", {"--format", "json", report}), RunningTool::Output::Terminal);
    shown.Wait();
    const std::string out = shown.Out();
    EXPECT_GT(out.size(), 100 * kFiles) << "of all files more than is printed at a time";
    for (std::size_t end = out.find('\r'); end != std::string::npos;
         end = out.find('\r', end + 1)) {
      if (out.substr(end, 2) == "\r\n") continue;
      ASSERT_TRUE(end == 0 || out[end - 1] != '}') << "a row is drawn over";
    }
  }
}

TEST_F(LargeArchive, LeavesNoProgressOnATerminalWhereTheWritingOfFilesIsInterrupted) {
  constexpr std::chrono::milliseconds kMoment{1};
  int shown = 0;
  for (int i = 0; i < 10; ++i) {
    const tests::TemporaryFolder folder;
    RunningTool tool(Command("4", {"--output-dir", folder.Path().string(), "gcd"}),
                     RunningTool::Output::Terminal);
    while (fs::is_empty(folder.Path())) std::this_thread::sleep_for(kMoment);
    std::this_thread::sleep_for(30 * i * kMoment);
    tool.Send(SIGTERM);
    EXPECT_EQ(tool.Wait(), SIGTERM);
    const std::string out = tool.Out();
    if (out.find(" of " + std::to_string(kFiles)) != std::string::npos) ++shown;
    EXPECT_TRUE(out.empty() || out.back() == '\r' || out.back() == '\n')
        << out.substr(out.rfind('\r') + 1);
  }
  EXPECT_GT(shown, 0);
}

TEST_F(LargeArchive, ShowsItsProgressOnATerminalAlone) {
  RunningTool shown(Command("2", {"--format", "csv", "check"}), RunningTool::Output::Terminal);
  shown.Wait();
  EXPECT_THAT(shown.Out(), HasSubstr(" of " + std::to_string(kFiles) + " files"));
  EXPECT_THAT(shown.Out(), HasSubstr(" failed"));
  RunningTool file(Command("2", {"--format", "csv", "check"}), RunningTool::Output::File);
  file.Wait();
  EXPECT_EQ(file.Err(), "");
}

}  // namespace
