// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/ReportList.h"
#include "support/FileSystem.h"
#include "tests/GaitTrials.h"
#include "tests/cli/Archive.h"
#include "tests/cli/ToolInFolder.h"
#include "tests/cli/ToolInside.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using tests::Archive;
using tests::RunInside;
using tests::ToolResult;

// What a report is asked for, so that it has something to say of every file.
std::vector<std::string> AskedOf(const reports::ReportInfo& report) {
  std::vector<std::string> arguments;
  if (report.NeedsLabel) arguments = {"--label", report.Name == "analog" ? "Fz1" : "LTOE"};
  return arguments;
}

ToolResult RunWith(std::vector<std::string> arguments, const std::string& jobs,
                   const std::string& report, const std::string& folder) {
  for (const std::string& word :
       {std::string("--recursive"), std::string("--jobs"), jobs, report, folder}) {
    arguments.push_back(word);
  }
  return RunInside(arguments);
}

void ExpectSame(const ToolResult& result, const ToolResult& expected, const std::string& about) {
  EXPECT_EQ(result.Status, expected.Status) << about;
  EXPECT_TRUE(result.Out == expected.Out) << about;
  EXPECT_EQ(result.Err, expected.Err) << about;
}

TEST(Jobs, ChangeNothingThatAReportPrints) {
  const Archive archive(36);
  for (const reports::ReportInfo& report : reports::kReports) {
    if (report.WritesGcdFiles || report.NeedsNormals) continue;
    const std::string name(report.Name);
    for (const std::string format : {"text", "csv", "json"}) {
      if (format != "text" && report.Columns.empty()) continue;
      std::vector<std::string> arguments = AskedOf(report);
      arguments.insert(arguments.end(), {"--format", format});
      const ToolResult one = RunWith(arguments, "1", name, archive.Path());
      EXPECT_EQ(one.Status, 1) << name;
      EXPECT_FALSE(one.Out.empty()) << name;
      ExpectSame(RunWith(arguments, "2", name, archive.Path()), one, name + ' ' + format);
      ExpectSame(RunWith(arguments, "8", name, archive.Path()), one, name + ' ' + format);
      ExpectSame(RunWith(arguments, "0", name, archive.Path()), one, name + ' ' + format);
    }
  }
}

TEST(Jobs, ChangeNoScores) {
  const Archive archive(36);
  const tests::TemporaryFolder folder;
  const ToolResult norms = RunWith({"--format", "csv"}, "1", "norms", archive.Path());
  std::ofstream(folder / "norms.csv", std::ios::binary) << norms.Out;
  const std::vector<std::string> arguments = {"--normal",
                                              modAllPurpose::Utf8Path(folder / "norms.csv")};
  const ToolResult one = RunWith(arguments, "1", "scores", archive.Path());
  EXPECT_THAT(one.Out, HasSubstr("GPS"));
  ExpectSame(RunWith(arguments, "3", "scores", archive.Path()), one, "scores");
}

TEST(Jobs, AreOneFileAfterTheOtherWhereNothingIsSaid) {
  const Archive archive(12);
  ExpectSame(RunInside({"--recursive", "measures", archive.Path()}),
             RunWith({}, "1", "measures", archive.Path()), "measures");
}

TEST(Jobs, AreACountUpTo256) {
  for (const std::string wrong : {"-1", "257", "two", "1.5", ""}) {
    const ToolResult run = RunInside({"--jobs", wrong, "groups", "missing.c3d"});
    EXPECT_EQ(run.Status, 2) << wrong;
    EXPECT_THAT(run.Err, HasSubstr("--jobs")) << wrong;
  }
}

TEST(Recursive, FilesStandUnderTheirNamesInOrder) {
  const tests::ToolInFolder tool;
  std::filesystem::create_directories(tool / "b/deep");
  std::filesystem::copy(tool / tests::kSampleWalk, tool / "b/deep/z.C3D");
  std::filesystem::copy(tool / tests::kSampleWalk, tool / "b/a.c3d");
  const ToolResult run = tool.Run({"--recursive", "groups", tests::kSampleWalk, "b"});
  EXPECT_EQ(run.Status, 0) << run.Err;
  EXPECT_THAT(run.Out, StartsWith("==> sample-walk.c3d <==\n"));
  const auto second = run.Out.find("==> b/a.c3d <==\n");
  const auto third = run.Out.find("==> b/deep/z.C3D <==\n");
  EXPECT_LT(second, third);
  EXPECT_NE(third, std::string::npos);
}

TEST(Recursive, AloneTakesFolders) {
  const tests::ToolInFolder tool;
  const ToolResult run = tool.Run({"groups", "."});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Out, "");
  EXPECT_THAT(run.Err, StartsWith("vantrel-report: .: "));
}

TEST(Recursive, FolderWithoutTrialsIsNamedAndTheOthersAreDone) {
  const tests::ToolInFolder tool;
  std::filesystem::create_directory(tool / "empty");
  const ToolResult run =
      tool.Run({"--recursive", "--format", "csv", "events", "empty", tests::kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, "vantrel-report: empty: no file below it ends in .c3d\n");
  EXPECT_THAT(run.Out, HasSubstr("\nsample-walk.c3d,1,"));
}

TEST(Recursive, FolderThatIsNotThereIsAMissingFile) {
  const tests::ToolInFolder tool;
  const ToolResult run = tool.Run({"--recursive", "groups", "missing"});
  EXPECT_THAT(run.Err, StartsWith("vantrel-report: missing: "));
  ExpectSame(run, tool.Run({"groups", "missing"}), "missing");
}

// The names of all GCD files in the folder and what they hold.
std::string GcdFilesBelow(const tests::ToolInFolder& tool, const std::string& folder) {
  std::string all;
  for (const std::string& name : tests::NamesIn(tool / folder)) {
    if (name.ends_with(".gcd")) all += name + '\n' + tool.Read(folder + '/' + name);
  }
  return all;
}

// Two trials of each name, and one that is named twice.
class GcdOfSeveralJobs : public testing::Test {
 protected:
  GcdOfSeveralJobs() {
    for (const char* folder : {"one", "two", "out1", "out8"}) {
      std::filesystem::create_directory(tool_ / folder);
    }
    for (int i = 0; i < 12; ++i) {
      const std::string name = "/walk" + std::to_string(i) + ".c3d";
      std::filesystem::create_hard_link(tool_ / tests::kSampleWalk, tool_ / ("one" + name));
      std::filesystem::create_hard_link(tool_ / tests::kSampleWalk, tool_ / ("two" + name));
    }
  }

  ToolResult Run(const std::string& jobs, const std::string& out,
                 const std::vector<std::string>& options = {}) const {
    std::vector<std::string> arguments = options;
    arguments.insert(arguments.end(), {"--recursive", "--jobs", jobs, "--output-dir", out, "gcd",
                                       "one", "two", "one/walk3.c3d"});
    return tool_.Run(arguments);
  }

  // The result as if the files had been written to the folder of one job.
  static ToolResult AsOfOne(ToolResult result) {
    for (std::string* text : {&result.Out, &result.Err}) {
      for (auto place = text->find("out8"); place != std::string::npos;
           place = text->find("out8")) {
        text->replace(place, 4, "out1");
      }
    }
    return result;
  }

  tests::ToolInFolder tool_;
};

TEST_F(GcdOfSeveralJobs, TheFirstTrialOfANameWritesItsFiles) {
  for (int i = 0; i < 5; ++i) {
    for (const auto& options : std::vector<std::vector<std::string>>{{}, {"--overwrite"}}) {
      const ToolResult one = Run("1", "out1", options);
      ExpectSame(AsOfOne(Run("8", "out8", options)), one, options.empty() ? "" : options[0]);
      EXPECT_THAT(one.Err, HasSubstr("was written for another trial of this command\n"));
      EXPECT_THAT(
          one.Err,
          EndsWith("one/walk3.c3d: this trial is named twice, its GCD files are written\n"));
      EXPECT_EQ(GcdFilesBelow(tool_, "out8"), GcdFilesBelow(tool_, "out1"));
      EXPECT_FALSE(GcdFilesBelow(tool_, "out1").empty());
      for (const std::string folder : {"out1", "out8"}) {
        std::filesystem::remove_all(tool_ / folder);
        std::filesystem::create_directory(tool_ / folder);
      }
    }
  }
}

TEST_F(GcdOfSeveralJobs, TheFirstTrialOfANameIsKnownHoweverTheFolderIsWritten) {
  for (const char* name : {"walk.c3d", "walk.old"}) {
    std::filesystem::create_hard_link(tool_ / tests::kSampleWalk, tool_ / name);
  }
  const ToolResult run = tool_.Run({"--jobs", "2", "--overwrite", "gcd", "walk.c3d", "./walk.old"});
  EXPECT_EQ(run.Status, 1);
  EXPECT_THAT(run.Err, EndsWith("./walk.old: ./walk-L1.gcd was written for another trial of this "
                                "command\n"));
}

TEST_F(GcdOfSeveralJobs, FilesThatExistStayForEach) {
  ASSERT_EQ(Run("1", "out1").Status, 1);
  ASSERT_EQ(Run("8", "out8").Status, 1);
  const std::string before = GcdFilesBelow(tool_, "out8");
  const ToolResult again = Run("8", "out8");
  ExpectSame(AsOfOne(again), Run("1", "out1"), "again");
  EXPECT_EQ(again.Out, "");
  EXPECT_EQ(GcdFilesBelow(tool_, "out8"), before);
}

}  // namespace
