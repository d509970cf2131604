// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <vector>

#include <gtest/gtest.h>

#include "tests/cli/ToolInFolder.h"

// Names of GCD files that are those of something else.
namespace {

namespace fs = std::filesystem;
using tests::kSampleWalk;
using tests::NamesIn;
using tests::ToolInFolder;
using tests::ToolResult;

std::string Complaint(const std::string& message) {
  return std::string("vantrel-report: ") + kSampleWalk + ": " + message + "\n";
}

TEST(GcdLinks, OfTwoStridesToOneFileAreRefusedAndNothingIsWritten) {
  const ToolInFolder tool;
  std::ofstream(tool / "shared") << "old";
  fs::create_symlink("shared", tool / "sample-walk-L2.gcd");
  fs::create_symlink("./shared", tool / "sample-walk-R1.gcd");
  const ToolResult run = tool.Run({"--overwrite", "gcd", kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Out, "");
  EXPECT_EQ(run.Err, Complaint("sample-walk-L2.gcd leads to the same file as sample-walk-R1.gcd, "
                               "one stride would replace the other"));
  EXPECT_EQ(tool.Read("shared"), "old");
  EXPECT_EQ(NamesIn(tool.Path()).size(), 4U);
}

TEST(GcdLinks, OfTwoStridesToAFileEachAreFollowed) {
  const ToolInFolder tool;
  std::ofstream(tool / "left") << "old";
  fs::create_hard_link(tool / "left", tool / "right");
  fs::create_symlink("left", tool / "sample-walk-L1.gcd");
  fs::create_symlink("right", tool / "sample-walk-R1.gcd");
  EXPECT_EQ(tool.Run({"--overwrite", "gcd", kSampleWalk}).Status, 0);
  EXPECT_NE(tool.Read("left"), tool.Read("right"));
  EXPECT_TRUE(fs::is_symlink(tool / "sample-walk-L1.gcd"));
}

TEST(GcdNamesTaken, ByWhatIsNeverReplacedAreNotSaidToBeReplaceable) {
  const std::string name = "sample-walk-L1.gcd";
  const std::vector<void (*)(const fs::path&)> kinds = {
      [](const fs::path& path) { fs::create_directory(path); },
      [](const fs::path& path) { fs::create_symlink("nowhere", path); },
      [](const fs::path& path) { ASSERT_EQ(::mkfifo(path.c_str(), S_IRWXU), 0); },
      [](const fs::path& path) { fs::create_symlink(kSampleWalk, path); }};
  for (const auto& make : kinds) {
    const ToolInFolder tool;
    make(tool / name);
    const ToolResult run = tool.Run({"gcd", kSampleWalk});
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Err, Complaint(name + " exists already"));
    EXPECT_EQ(NamesIn(tool.Path()).size(), 2U);
  }
}

}  // namespace
