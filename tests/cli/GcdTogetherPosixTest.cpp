// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "sample/TrialBuilder.h"
#include "support/FileInWaiting.h"
#include "tests/GaitTrials.h"
#include "tests/cli/RunningTool.h"
#include "tests/cli/ToolInFolder.h"

// Runs of the tool that write the same GCD files at once, and runs that do not come to their end.
namespace {

namespace fs = std::filesystem;
using tests::kSampleWalk;
using tests::NamesIn;
using tests::ToolInFolder;
using tests::ToolResult;

constexpr std::size_t kStrides = 6;  // of the sample walk

std::vector<std::string> GcdFilesIn(const ToolInFolder& tool) {
  std::vector<std::string> names;
  for (const std::string& name : NamesIn(tool.Path())) {
    if (name.ends_with(".gcd")) names.push_back(name);
  }
  return names;
}

// How many of the files are those of the run with that gender.
std::size_t FilesOf(const ToolInFolder& tool, const std::string& gender) {
  const auto names = GcdFilesIn(tool);
  return static_cast<std::size_t>(std::ranges::count_if(names, [&](const std::string& name) {
    return tool.Read(name).find("$Gender\r\n" + gender + "\r\n") != std::string::npos;
  }));
}

void RemoveGcdFiles(const ToolInFolder& tool) {
  for (const std::string& name : GcdFilesIn(tool)) fs::remove(tool / name);
}

TEST(GcdTogether, OneOfTwoRunsWritesAllItsFilesAndTheOtherNone) {
  constexpr int kTries = 200;
  const ToolInFolder tool;
  for (int i = 0; i < kTries && !testing::Test::HasFailure(); ++i) {
    ToolResult male;
    std::thread other([&] { male = tool.Run({"--gender", "male", "gcd", kSampleWalk}); });
    const ToolResult female = tool.Run({"--gender", "female", "gcd", kSampleWalk});
    other.join();
    EXPECT_EQ(male.Status + female.Status, 1) << male.Err << female.Err;
    EXPECT_EQ(FilesOf(tool, male.Status == 0 ? "Male" : "Female"), kStrides);
    const ToolResult& loser = male.Status == 0 ? female : male;
    EXPECT_EQ(loser.Out, "");
    EXPECT_NE(loser.Err.find(" exists already (--overwrite replaces it)\n"), std::string::npos);
    EXPECT_EQ(NamesIn(tool.Path()).size(), kStrides + 1);
    RemoveGcdFiles(tool);
  }
}

// The signal that ended a run which is sent `signal` after a while; 0 where it came to its end,
// that of a kill where it came to none.
[[nodiscard]] int EndAfter(const ToolInFolder& tool, const std::vector<std::string>& arguments,
                           int signal, std::chrono::microseconds while_) {
  tests::RunningTool run(arguments, tests::RunningTool::Output::File, tool.Path());
  std::this_thread::sleep_for(while_);
  run.Send(signal);
  return run.WaitAtMost(std::chrono::minutes(1));
}

TEST(GcdInterrupted, LeavesAWholeSetOrNothing) {
  const ToolInFolder tool;
  int interrupted = 0;
  for (int i = 0; i < 60; ++i) {
    const int signal = std::array{SIGINT, SIGTERM, SIGHUP}[static_cast<std::size_t>(i % 3)];
    const int ended =
        EndAfter(tool, {"gcd", kSampleWalk}, signal, std::chrono::microseconds(1000 * i));
    const auto files = GcdFilesIn(tool).size();
    EXPECT_TRUE(files == 0 || files == kStrides) << files;
    EXPECT_EQ(NamesIn(tool.Path()).size(), files + 1) << "something temporary is left";
    if (ended != 0) {
      EXPECT_EQ(ended, signal);
      ++interrupted;
    } else {
      EXPECT_EQ(files, kStrides);
    }
    RemoveGcdFiles(tool);
  }
  EXPECT_GT(interrupted, 0);
}

constexpr std::size_t kLongWalkStrides = 23;

// A walk of 12 left and 11 right strides.
sample::Trial LongWalk() {
  sample::TrialBuilder builder;
  builder.Frames(1, 1300).AddEvent("Left", "Foot Strike", 0.5F);
  for (int i = 0; i < 12; ++i) {
    const auto start = static_cast<float>(i);
    builder.AddEvent("Right", "Foot Off", start + 0.625F)
        .AddEvent("Right", "Foot Strike", start + 1.0F)
        .AddEvent("Left", "Foot Off", start + 1.125F)
        .AddEvent("Left", "Foot Strike", start + 1.5F);
  }
  return builder.Build();
}

// Waits until any of the files is another one than it was, or for a while.
void AwaitAnother(const std::vector<fs::path>& files) {
  const auto identities = [&] {
    std::vector<std::optional<modAllPurpose::FileIdentity>> found;
    std::ranges::transform(files, std::back_inserter(found), modAllPurpose::IdentityOf);
    return found;
  };
  const auto before = identities();
  const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  while (identities() == before && std::chrono::steady_clock::now() < end) {
  }
}

TEST(GcdInterrupted, WhileItTakesThePlacesOfOldFilesItTakesThemAll) {
  const ToolInFolder tool;
  LongWalk().WriteTo(tool / "walk.c3d");
  int interrupted = 0;
  for (int i = 0; i < 10; ++i) {
    ASSERT_EQ(tool.Run({"--overwrite", "--gender", "male", "gcd", "walk.c3d"}).Status, 0);
    ASSERT_EQ(FilesOf(tool, "Male"), kLongWalkStrides);
    tests::RunningTool run({"--overwrite", "--gender", "female", "gcd", "walk.c3d"},
                           tests::RunningTool::Output::File, tool.Path());
    AwaitAnother({tool / "walk-L1.gcd", tool / "walk-R1.gcd"});
    run.Send(SIGTERM);
    if (run.WaitAtMost(std::chrono::minutes(1)) == SIGTERM) ++interrupted;
    EXPECT_EQ(FilesOf(tool, "Female"), kLongWalkStrides);
    EXPECT_EQ(NamesIn(tool.Path()).size(), kLongWalkStrides + 2) << "something temporary is left";
  }
  EXPECT_GT(interrupted, 0);
}

TEST(GcdInterrupted, LeavesAllReplacedFilesOldOrAllNew) {
  const ToolInFolder tool;
  int interrupted = 0;
  for (int i = 0; i < 60; ++i) {
    ASSERT_EQ(tool.Run({"--overwrite", "--gender", "male", "gcd", kSampleWalk}).Status, 0);
    const int ended = EndAfter(tool, {"--overwrite", "--gender", "female", "gcd", kSampleWalk},
                               SIGTERM, std::chrono::microseconds(1000 * i));
    EXPECT_TRUE(ended == 0 || ended == SIGTERM) << ended;
    if (ended != 0) ++interrupted;
    EXPECT_EQ(NamesIn(tool.Path()).size(), kStrides + 1) << "something temporary is left";
    EXPECT_EQ(FilesOf(tool, FilesOf(tool, "Male") == 0 ? "Female" : "Male"), kStrides);
  }
  EXPECT_GT(interrupted, 0);
}

// Lets programs that are started have so few files open at once until they ask for more.
class FewOpenFiles {
 public:
  explicit FewOpenFiles(rlim_t count) {
    EXPECT_EQ(::getrlimit(RLIMIT_NOFILE, &before_), 0);
    EXPECT_GT(before_.rlim_max, count);
    const rlimit few{count, before_.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
  }
  FewOpenFiles(const FewOpenFiles&) = delete;
  FewOpenFiles& operator=(const FewOpenFiles&) = delete;
  ~FewOpenFiles() { ::setrlimit(RLIMIT_NOFILE, &before_); }

 private:
  rlimit before_{};
};

TEST(GcdOfManyStrides, IsReplacedWhereOnlyFewFilesMayBeOpenUnlessAProgramAsksForMore) {
  const ToolInFolder tool;
  LongWalk().WriteTo(tool / "walk.c3d");
  const FewOpenFiles few(20);
  EXPECT_EQ(tool.Run({"--overwrite", "gcd", "walk.c3d"}).Status, 0);
  EXPECT_EQ(GcdFilesIn(tool).size(), kLongWalkStrides);
}

TEST(GcdLines, ThatAreLostOnAFullDiskAreStandardOutputsFailureAlone) {
  const ToolInFolder tool;
  tests::WholeFrameTrial().Build().WriteTo(tool / "a.c3d");
  const ToolResult run = tests::RunTool({"--axes", "anatomical", "gcd", "a.c3d", kSampleWalk},
                                        {.Path = "/dev/full"}, tool.Path());
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "vantrel-report: standard output: Run-time error '61': Disk full\n");
  EXPECT_EQ(GcdFilesIn(tool).size(), kStrides + 1);
}

TEST(GcdLines, OfAToolWithoutAnyOutputStandInNoFile) {
  const ToolInFolder tool;
  std::vector<std::string> arguments = {"--overwrite", "--jobs", "4", "gcd"};
  for (int i = 0; i < 12; ++i) {
    arguments.push_back(std::to_string(i) + ".c3d");
    tests::WholeFrameTrial().Build().WriteTo(tool / arguments.back());
  }
  ASSERT_EQ(tool.Run(arguments).Status, 0);
  const std::string text = tool.Read("0-L1.gcd");
  for (int i = 0; i < 10 && !testing::Test::HasFailure(); ++i) {
    EXPECT_EQ(tests::RunTool(arguments, {.NoStreams = true}, tool.Path()).Status, 1);
    for (const std::string& name : GcdFilesIn(tool)) EXPECT_EQ(tool.Read(name), text) << name;
  }
}

}  // namespace
