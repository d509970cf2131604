// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "console/Start.h"
#include "gait/GcdFiles.h"
#include "sample/SampleWalk.h"
#include "sample/TrialBuilder.h"
#include "support/FileSystem.h"
#include "tests/DeepFolder.h"
#include "tests/TestTrials.h"
#include "tests/cli/ToolRun.h"

// What the tool does on Windows alone.
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using tests::RunTool;
using tests::ToolResult;

class ToolOnWindows : public testing::Test {
 protected:
  void Write(const std::string& name) const {
    sample::TrialBuilder().Build().WriteTo(folder_ / name);
  }

  static std::vector<std::string> HeadingsOf(const std::string& output) {
    std::vector<std::string> headings = tests::LinesOf(output);
    std::erase_if(headings, [](const auto& line) { return !line.starts_with("==> "); });
    return headings;
  }

  // The heading of each file that a run on `patterns` reported on.
  std::vector<std::string> FilesOf(std::vector<std::string> patterns) const {
    patterns.insert(patterns.begin(), "groups");
    return HeadingsOf(RunTool(patterns, {}, folder_.Path()).Out);
  }

  tests::TemporaryFolder folder_;
};

TEST_F(ToolOnWindows, TakesAWildcardForTheFilesWhoseNamesFitInOrder) {
  for (const char* name : {"walk 2.c3d", "Walk 1.C3D", "walk 10.c3d", "other.txt"}) Write(name);
  fs::create_directory(folder_ / "folder.c3d");
  EXPECT_THAT(FilesOf({"*.c3d"}),
              ElementsAre("==> Walk 1.C3D <==", "==> walk 10.c3d <==", "==> walk 2.c3d <=="));
  EXPECT_THAT(FilesOf({"WALK ?.c3d"}), ElementsAre("==> Walk 1.C3D <==", "==> walk 2.c3d <=="));
  EXPECT_THAT(FilesOf({"*"}), testing::SizeIs(4));
}

TEST_F(ToolOnWindows, TakesNoFileForAWildcardThatOnlyItsShortNameFits) {
  for (const char* name : {"walk 1.c3d", "walk 1.c3d_old", "walk 1.c3dx"}) Write(name);
  EXPECT_THAT(FilesOf({"*.c3d", "walk 1.c3dx"}),
              ElementsAre("==> walk 1.c3d <==", "==> walk 1.c3dx <=="));
}

TEST_F(ToolOnWindows, WritesGcdFilesIntoTheCurrentFolderOfADrive) {
  EXPECT_EQ(modVantrel::GcdFileName("walk.c3d", {modVantrel::GaitSide::Left, 1}, "C:"),
            "C:walk-L1.gcd");
}

TEST_F(ToolOnWindows, TakesWildcardsOfTheLastNameOnly) {
  Write("walk.c3d");
  const std::string folder = modAllPurpose::Utf8Path(folder_.Path());
  for (const std::string name : {"walk.c3d", "wa*/walk.c3d", "wa?\\walk.c3d", ""}) {
    EXPECT_THAT(console::WithoutWildcards(name), ElementsAre(name));
  }
  EXPECT_THAT(console::WithoutWildcards(folder + "/w*.c3d"), ElementsAre(folder + "/walk.c3d"));
  EXPECT_THAT(console::WithoutWildcards(folder + "\\w?lk.c3d"), ElementsAre(folder + "\\walk.c3d"));
}

TEST_F(ToolOnWindows, TakesFilesInTheOrderOfTheirPatterns) {
  for (const char* name : {"a.c3d", "b1.c3d", "b2.c3d"}) Write(name);
  EXPECT_THAT(FilesOf({"b?.c3d", "a.c3d"}),
              ElementsAre("==> b1.c3d <==", "==> b2.c3d <==", "==> a.c3d <=="));
}

TEST_F(ToolOnWindows, TakesAWildcardThatFitsNothingForAFile) {
  const ToolResult result = RunTool({"groups", "*.c3d"}, {}, folder_.Path());
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Err, testing::StartsWith("vantrel-report: *.c3d: "));
}

TEST_F(ToolOnWindows, NamesAWildcardThatTheSystemRefusesAndDoesTheOtherFiles) {
  Write("walk.c3d");
  const ToolResult result =
      RunTool({"groups", R"(walk.c3d\*.c3d)", "walk.c3d"}, {}, folder_.Path());
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Err,
              testing::StartsWith(R"(vantrel-report: walk.c3d\*.c3d: Run-time error ')"));
  EXPECT_EQ(tests::LinesOf(result.Err).size(), 1U) << result.Err;
  EXPECT_THAT(result.Out, testing::StartsWith("POINT"));
}

TEST_F(ToolOnWindows, IsReadyForLongPaths) {
  const HMODULE tool = ::LoadLibraryExW(fs::absolute(VANTREL_REPORT_TOOL).c_str(), nullptr,
                                        LOAD_LIBRARY_AS_DATAFILE);
  ASSERT_NE(tool, nullptr);
  const HRSRC manifest = ::FindResourceW(tool, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));
  ASSERT_NE(manifest, nullptr);
  const std::string_view text(
      static_cast<const char*>(::LockResource(::LoadResource(tool, manifest))),
      ::SizeofResource(tool, manifest));
  EXPECT_NE(text.find(">true</longPathAware>"), std::string_view::npos);
  ::FreeLibrary(tool);
}

TEST_F(ToolOnWindows, FindsReadsAndWritesBehindALongPathWithoutASettingOfTheSystem) {
  const tests::DeepFolder deep;
  tests::MakeFolder(deep / "visit");
  const std::vector<std::string> trials = {deep.Path() + "/a.c3d", deep.Path() + "/visit/b.c3d"};
  for (const std::string& trial : trials) {
    sample::SampleWalk().Build().WriteTo(modAllPurpose::NativePath(trial));
  }
  const ToolResult found = RunTool({"measures", "--recursive", deep.Path()}, {}, folder_.Path());
  EXPECT_EQ(found.Status, 0) << found.Err;
  EXPECT_THAT(HeadingsOf(found.Out),
              ElementsAre("==> " + trials[0] + " <==", "==> " + trials[1] + " <=="));
  EXPECT_EQ(RunTool({"gcd", trials[0]}).Status, 0);
  EXPECT_TRUE(modAllPurpose::FileExists(deep / "a-L1.gcd"));
  EXPECT_EQ(RunTool({"gcd", "--overwrite", trials[0]}).Status, 0);
  EXPECT_THAT(HeadingsOf(RunTool({"groups", deep / "*.c3d", trials[1]}).Out), testing::SizeIs(2));
}

}  // namespace
