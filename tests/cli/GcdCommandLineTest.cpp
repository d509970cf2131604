// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/cli/ToolInFolder.h"

namespace {

using tests::kSampleWalk;
using tests::NamesIn;
using tests::ToolInFolder;
using tests::ToolResult;

std::string Complaint(const std::string& file, const std::string& message) {
  return "vantrel-report: " + file + ": " + message + "\n";
}

void Put(const ToolInFolder& tool, const std::string& name, const std::string& text) {
  std::ofstream(tool / name, std::ios::binary) << text;
}

TEST(GcdCommandLine, WritesBesideTheTrialAndNamesTheFiles) {
  const ToolInFolder tool;
  const ToolResult run = tool.Run({"gcd", kSampleWalk});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Err, "");
  EXPECT_TRUE(run.Out.starts_with("Output: sample-walk-L1.gcd\nOutput: sample-walk-R1.gcd\n"));
  EXPECT_TRUE(run.Out.ends_with("Done.\n"));
  EXPECT_EQ(NamesIn(tool.Path()).size(), 7U);
}

TEST(GcdCommandLine, OutputDirTakesTheFiles) {
  const ToolInFolder tool;
  std::filesystem::create_directory(tool / "out");
  const ToolResult run = tool.Run({"--output-dir", "out", "gcd", kSampleWalk});
  EXPECT_EQ(run.Status, 0);
  EXPECT_TRUE(run.Out.starts_with("Output: out/sample-walk-L1.gcd\n"));
  EXPECT_EQ(NamesIn(tool / "out").size(), 6U);
  EXPECT_EQ(NamesIn(tool.Path()), (std::vector<std::string>{"out", kSampleWalk}));
}

TEST(GcdCommandLine, MissingOutputDirIsAnErrorOfEachFile) {
  const ToolInFolder tool;
  const ToolResult run = tool.Run({"--output-dir", "missing", "gcd", kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, Complaint(kSampleWalk, "Run-time error '76': Path not found: missing"));
  EXPECT_EQ(NamesIn(tool.Path()), std::vector<std::string>{kSampleWalk});
}

TEST(GcdCommandLine, RefusesToOverwriteAndLeavesTheOldFile) {
  const ToolInFolder tool;
  Put(tool, "sample-walk-R1.gcd", "old");
  const ToolResult run = tool.Run({"gcd", kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err,
            Complaint(kSampleWalk, "sample-walk-R1.gcd exists already (--overwrite replaces it)"));
  EXPECT_EQ(run.Out, "") << "nothing is written, not even the files in front of it";
  EXPECT_EQ(tool.Read("sample-walk-R1.gcd"), "old");
  EXPECT_EQ(NamesIn(tool.Path()).size(), 2U);
}

TEST(GcdCommandLine, TwoTrialsOfOneNameDoNotTakeEachOthersFiles) {
  const ToolInFolder tool;
  std::filesystem::create_directory(tool / "out");
  std::filesystem::create_directory(tool / "other");
  std::filesystem::copy_file(tool / kSampleWalk, tool / "other" / kSampleWalk);
  const std::string other = "other/sample-walk.c3d";
  const ToolResult run =
      tool.Run({"--overwrite", "--output-dir", "out", "gcd", kSampleWalk, other});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(
      run.Err,
      Complaint(other, "out/sample-walk-L1.gcd was written for another trial of this command"));
  EXPECT_EQ(NamesIn(tool / "out").size(), 6U);
}

TEST(GcdCommandLine, TrialNamedTwiceIsSaidToBe) {
  const ToolInFolder tool;
  const std::string again = std::string("./") + kSampleWalk;
  for (const std::vector<std::string>& options :
       {std::vector<std::string>{}, std::vector<std::string>{"--overwrite"}}) {
    std::vector<std::string> arguments = options;
    arguments.insert(arguments.end(), {"gcd", kSampleWalk, again});
    const ToolResult run = tool.Run(arguments);
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Err, Complaint(again, "this trial is named twice, its GCD files are written"));
    for (const std::string& name : NamesIn(tool.Path())) {
      if (name.ends_with(".gcd")) std::filesystem::remove(tool / name);
    }
  }
}

TEST(GcdCommandLine, WhatWasNotWrittenIsNotSaidToBe) {
  const ToolInFolder tool;
  const ToolResult run = tool.Run({"--output-dir", "missing", "gcd", kSampleWalk, kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  const std::string line = Complaint(kSampleWalk, "Run-time error '76': Path not found: missing");
  EXPECT_EQ(run.Err, line + line);
}

TEST(GcdCommandLine, TrialOfAShortNameIsWrittenIntoItsOwnFolder) {
  const ToolInFolder tool;
  std::filesystem::create_directory(tool / "sub");
  tests::WholeFrameTrial().Build().WriteTo(tool / "sub" / "abc");
  const ToolResult run = tool.Run({"gcd", "sub/abc"});
  EXPECT_EQ(run.Out, "Output: sub/abc-L1.gcd\nDone.\n");
  EXPECT_EQ(NamesIn(tool / "sub"), (std::vector<std::string>{"abc", "abc-L1.gcd"}));
}

TEST(GcdCommandLine, OverwriteRefusesATrialAndChangesNothing) {
  const ToolInFolder tool;
  std::filesystem::create_hard_link(tool / kSampleWalk, tool / "sample-walk-R2.gcd");
  const std::string trial = tool.Read(kSampleWalk);
  const ToolResult run = tool.Run({"--overwrite", "gcd", kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, Complaint(kSampleWalk,
                               "Run-time error '75': Path/File access error: sample-walk-R2.gcd is "
                               "a C3D file"));
  EXPECT_EQ(NamesIn(tool.Path()).size(), 2U);
  EXPECT_TRUE(tool.Read("sample-walk-R2.gcd") == trial);
}

TEST(GcdCommandLine, ClosedPipeKeepsNoFileBack) {
  const ToolInFolder tool;
  tests::WholeFrameTrial().Build().WriteTo(tool / "a.c3d");
  Put(tool, "b-L1.gcd", "old");
  tests::WholeFrameTrial().Build().WriteTo(tool / "b.c3d");
  const ToolResult run =
      tests::RunTool({"--axes", "anatomical", "gcd", "a.c3d", "b.c3d", kSampleWalk},
                     {.ClosedPipe = true}, tool.Path());
  EXPECT_EQ(run.Status, 1) << "of b.c3d alone";
  EXPECT_EQ(run.Err, Complaint("b.c3d", "b-L1.gcd exists already (--overwrite replaces it)"));
  EXPECT_EQ(NamesIn(tool.Path()).size(), 11U);
  EXPECT_EQ(
      tests::RunTool({"--overwrite", "gcd", kSampleWalk}, {.ClosedPipe = true}, tool.Path()).Status,
      0);
}

sample::TrialBuilder WalkAlong(const std::array<float, 3>& step) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("LTOE", tests::Moving({}, step)).AddPoint("RTOE", tests::Standing(0, 0, 0));
  builder.AddPoint("LKneeAngles", tests::Standing(10, 20, 30));
  return builder;
}

TEST(GcdCommandLine, SaysWhereTheAxesOfTheWalkExchangeOrEmptyCurves) {
  const ToolInFolder tool;
  WalkAlong({0, 16, 0}).Build().WriteTo(tool / "along-y.c3d");
  WalkAlong({16, 0, 0}).Build().WriteTo(tool / "along-x.c3d");
  tests::WholeFrameTrial().Build().WriteTo(tool / "no-toes.c3d");
  const ToolResult run = tool.Run({"gcd", "along-y.c3d", "along-x.c3d", "no-toes.c3d"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(
      run.Err,
      Complaint("along-y.c3d",
                "the walk goes along Y, so sagittal curves are component 2 and coronal ones "
                "component 1 (--axes anatomical takes 1 and 2)") +
          Complaint("no-toes.c3d",
                    "there are no toe markers to tell the direction of the walk, so sagittal "
                    "curves are 0 and coronal ones component 1 (--axes anatomical takes 1 and "
                    "2)"));
}

TEST(GcdCommandLine, AnatomicalAxesTakeTheFirstComponentAsSagittalWhateverTheWalk) {
  const ToolInFolder tool;
  WalkAlong({0, 16, 0}).Build().WriteTo(tool / "walk.c3d");
  const ToolResult run = tool.Run({"--axes", "anatomical", "gcd", "walk.c3d"});
  EXPECT_EQ(run.Err, "");
  const std::string text = tool.Read("walk-L1.gcd");
  EXPECT_NE(text.find("!LeftKneeFlexExt\r\n10.0\r\n"), std::string::npos);
  EXPECT_NE(text.find("!LeftKneeValgVar\r\n20.0\r\n"), std::string::npos);
  EXPECT_NE(text.find("!LeftKneeRotation\r\n30.0\r\n"), std::string::npos);
}

TEST(GcdCommandLine, WrongUsageWritesNothing) {
  const ToolInFolder tool;
  const std::vector<std::vector<std::string>> wrong = {
      {"--output-dir=", "the name of the folder is empty"},
      {"--date-of-birth=2026-02-30", "'2026-02-30' is no date of the form YYYY-MM-DD"},
      {"--visit-date=20.11.2026", "'20.11.2026' is no date of the form YYYY-MM-DD"}};
  for (const auto& row : wrong) {
    const ToolResult run = tool.Run({row[0], "gcd", kSampleWalk});
    EXPECT_EQ(run.Status, 2);
    EXPECT_EQ(run.Err, Complaint(row[0].substr(0, row[0].find('=')), row[1]) +
                           "Try 'vantrel-report --help' for more information.\n");
    EXPECT_EQ(NamesIn(tool.Path()), std::vector<std::string>{kSampleWalk});
  }
}

TEST(GcdCommandLine, OverwriteReplacesThemAll) {
  const ToolInFolder tool;
  for (const std::string name : {"sample-walk-L1.gcd", "sample-walk-R3.gcd"}) {
    Put(tool, name, "old");
  }
  const ToolResult run = tool.Run({"--overwrite", "gcd", kSampleWalk});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Err, "");
  for (const std::string name : {"sample-walk-L1.gcd", "sample-walk-R3.gcd"}) {
    EXPECT_TRUE(tool.Read(name).starts_with("#!DST-0.1 GCD Quarrin PhD 1.00\r\n")) << name;
  }
}

TEST(GcdCommandLine, SubjectOfTheOptionsComesBeforeTheTrialsOwn) {
  const ToolInFolder tool;
  const ToolResult run = tool.Run({"--gender", "male", "--date-of-birth", "2016-01-01",
                                   "--visit-date", "2026-01-01", "gcd", kSampleWalk});
  EXPECT_EQ(run.Status, 0);
  EXPECT_NE(tool.Read("sample-walk-L1.gcd").find("$Gender\r\nMale\r\n$Age\r\n10.01\r\n"),
            std::string::npos);
}

TEST(GcdCommandLine, TrialsOwnSubjectComesBeforeTheSubjectFile) {
  const ToolInFolder tool;
  Put(tool, "subject.ini", "Gender=Male\nDOB=2000-01-01\nDate=2001-01-01\n");
  ASSERT_EQ(tool.Run({"gcd", kSampleWalk}).Status, 0);
  EXPECT_NE(tool.Read("sample-walk-L1.gcd").find("$Gender\r\nFemale\r\n$Age\r\n12.20\r\n"),
            std::string::npos);
}

TEST(GcdCommandLine, SubjectFileServesEveryTrialOfItsFolder) {
  const ToolInFolder tool;
  sample::TrialBuilder trial = tests::WholeFrameTrial();
  trial.Build().WriteTo(tool / "a.c3d");
  trial.Build().WriteTo(tool / "b.c3d");
  Put(tool, "subject.ini", "\xEF\xBB\xBFGENDER = f\r\ndob = 2016-01-01\r\ndate = 2026-01-01\r\n");
  ASSERT_EQ(tool.Run({"gcd", "a.c3d", "b.c3d"}).Status, 0);
  for (const std::string name : {"a-L1.gcd", "b-L1.gcd"}) {
    EXPECT_NE(tool.Read(name).find("$Gender\r\nFemale\r\n$Age\r\n10.01\r\n"), std::string::npos);
  }
}

TEST(GcdCommandLine, NothingKnownOfTheSubjectIsSaidSo) {
  const ToolInFolder tool;
  tests::WholeFrameTrial().Build().WriteTo(tool / "a.c3d");
  ASSERT_EQ(tool.Run({"gcd", "a.c3d"}).Status, 0);
  EXPECT_NE(tool.Read("a-L1.gcd").find("$Gender\r\nNotSpecified\r\n$Age\r\n0.00\r\n"),
            std::string::npos);
}

TEST(GcdCommandLine, TrialWithoutStridesIsNamedAndTheOthersAreDone) {
  const ToolInFolder tool;
  sample::TrialBuilder().Build().WriteTo(tool / "still.c3d");
  const ToolResult run = tool.Run({"gcd", "still.c3d", kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, Complaint("still.c3d", "No valid stride events were found."));
  EXPECT_TRUE(run.Out.starts_with("==> sample-walk.c3d <==\nOutput: sample-walk-L1.gcd\n"));
  EXPECT_EQ(NamesIn(tool.Path()).size(), 8U);
}

TEST(GcdCommandLine, TrialOfAUtf8NameIsWrittenBesideIt) {
  const ToolInFolder tool;
  tests::WholeFrameTrial().Build().WriteTo(tool / "G\xC3\xB6nne 1.c3d");
  const ToolResult run = tool.Run({"gcd", "G\xC3\xB6nne 1.c3d"});
  EXPECT_EQ(run.Out, "Output: G\xC3\xB6nne 1-L1.gcd\nDone.\n");
  EXPECT_TRUE(std::filesystem::exists(tool / "G\xC3\xB6nne 1-L1.gcd"));
}

TEST(ReportCommandLine, LabelIsFoundInAnyCaseWithBlanksAround) {
  const ToolInFolder tool;
  const ToolResult run = tool.Run({"--label", "  lkneeANGLES ", "point", kSampleWalk});
  EXPECT_EQ(run.Status, 0);
  EXPECT_TRUE(run.Out.starts_with("Label: 'lkneeANGLES'\n"));
}

TEST(ReportCommandLine, UnknownLabelAndMissingStridesAreNamed) {
  const ToolInFolder tool;
  sample::TrialBuilder().Build().WriteTo(tool / "still.c3d");
  const std::vector<std::vector<std::string>> rows = {
      {"point", "LXXX", kSampleWalk, "point label not found"},
      {"analog", "LTOE", kSampleWalk, "analog label not found"},
      {"normalized", "LXXX", kSampleWalk, "point label not found"},
      {"normalized", "LTOE", "still.c3d", "valid PIG events not found"}};
  for (const auto& row : rows) {
    const ToolResult run = tool.Run({"--label", row[1], row[0], row[2]});
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Out, "");
    EXPECT_EQ(run.Err, Complaint(row[2], row[3]));
  }
}

TEST(ReportCommandLine, MeasuresOfSeveralTrialsNameTheFailedAndPrintTheOthers) {
  const ToolInFolder tool;
  sample::TrialBuilder().Build().WriteTo(tool / "still.c3d");
  Put(tool, "damaged.c3d", "no trial");
  Put(tool, "other.c3d", std::string(512, '\0'));
  const ToolResult run =
      tool.Run({"measures", "damaged.c3d", "still.c3d", "missing.c3d", "other.c3d", kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err,
            Complaint("damaged.c3d", "Run-time error '62': Input past end of file") +
                Complaint("missing.c3d", "File open error while attempting to open C3D file.") +
                Complaint("other.c3d", "Not a valid C3D file.  The file key value was not found."));
  EXPECT_TRUE(run.Out.starts_with("==> still.c3d <==\n\n==> sample-walk.c3d <==\nLeft Side #1\n"))
      << run.Out.substr(0, 80);
}

TEST(ReportCommandLine, CutTrialPrintsNothingOfTheLabelThatIsCut) {
  const ToolInFolder tool;
  std::filesystem::resize_file(tool / kSampleWalk,
                               std::filesystem::file_size(tool / kSampleWalk) - 1);
  const ToolResult run = tool.Run({"--label", "R.Tib.Ant", "analog", kSampleWalk});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Err, Complaint(kSampleWalk, "Run-time error '62': Input past end of file"));
  EXPECT_EQ(run.Out, "") << "the data are read before the first line";
}

}  // namespace
