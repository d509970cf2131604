// SPDX-License-Identifier: GPL-3.0-or-later

#include <deque>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "gait/GcdCalcs.h"
#include "gait/GcdCommand.h"
#include "gait/GcdText.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using tests::ErrorNumberOf;
using tests::NamesIn;
using tests::OpenedWalk;
using tests::ReadWholeFile;
using tests::TemporaryFolder;

using tests::kDivisionByZero;
using tests::kPathNotFound;

// Answers as it was told and keeps the names it was asked about.
class ToldAnswers : public OverwriteQuestion {
 public:
  explicit ToldAnswers(std::deque<OverwriteAnswer> answers) : answers_(std::move(answers)) {}

  OverwriteAnswer Ask(const std::string& gcdFileName) override {
    Asked.push_back(gcdFileName);
    if (answers_.empty()) {
      ADD_FAILURE() << "asked once too often, about " << gcdFileName;
      return OverwriteAnswer::Cancel;
    }
    const OverwriteAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
  }

  void Tell(const std::string& remark) override { Told.push_back(remark); }

  std::vector<std::string> Asked;
  std::vector<std::string> Told;

 private:
  std::deque<OverwriteAnswer> answers_;
};

// Three strides: left 1, right 1, left 2.
sample::Trial ThreeStrides() {
  sample::TrialBuilder builder;
  builder.Frames(1, 400);
  tests::AddStrideEvents(builder, "Left", {1.00F, 1.10F, 1.50F, 1.60F, 2.00F});
  builder.AddEvent("Right", "Foot Off", 2.10F)
      .AddEvent("Right", "Foot Strike", 2.50F)
      .AddEvent("Left", "Foot Off", 2.60F)
      .AddEvent("Left", "Foot Strike", 3.00F);
  return builder.Build();
}

class GcdFilesTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return (walk_.Folder() / name).string(); }
  void Put(const std::string& name, const std::string& text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
  }
  std::string Read(const std::string& name) const { return ReadWholeFile(Path(name)); }

  // Runs the command with those answers and returns the pane's text.
  std::string Write(std::deque<OverwriteAnswer> answers, const GcdOptions& options = {}) {
    ToldAnswers question(std::move(answers));
    modAllPurpose::TextReport output;
    const auto result = WriteGcdFiles(walk_.State(), options, question, output);
    EXPECT_FALSE(result.IsRejected());
    EXPECT_TRUE(output.Begun());
    asked_ = question.Asked;
    told_ = question.Told;
    return output.Text();
  }

  // The line of the error that the command ends in with those answers.
  std::string ErrorLineOfWriting(std::deque<OverwriteAnswer> answers) {
    try {
      Write(std::move(answers));
      return {};
    } catch (const modAllPurpose::RuntimeError& error) {
      return RuntimeErrorLine(error);
    }
  }

  OpenedWalk walk_{ThreeStrides(), FindGaitEvents, "walk.c3d"};
  std::vector<std::string> asked_;
  std::vector<std::string> told_;
};

TEST_F(GcdFilesTest, WhatTheAxesDoToTheCurvesIsToldOnceAllAreWritten) {
  Write({});
  ASSERT_EQ(told_.size(), 1U);
  EXPECT_EQ(told_[0].substr(0, 26), "there are no toe markers t");
  Write({OverwriteAnswer::Cancel});
  EXPECT_TRUE(told_.empty());
  GcdOptions anatomical;
  anatomical.Axes = modVantrel::GcdAxes::Anatomical;
  Write({OverwriteAnswer::YesToAll}, anatomical);
  EXPECT_TRUE(told_.empty());
}

TEST(GcdFileName, EndsInSideLetterAndNumber) {
  EXPECT_EQ(GcdFileName("D:\\gait\\walk03.c3d", {GaitSide::Left, 2}, ""),
            "D:\\gait\\walk03-L2.gcd");
  EXPECT_EQ(GcdFileName("/gait/walk03.C3D", {GaitSide::Right, 1}, ""), "/gait/walk03-R1.gcd");
  EXPECT_EQ(GcdFileName("walks", {GaitSide::None, 12}, ""), "w-N12.gcd")
      << "four characters are cut";
}

TEST(GcdFileName, KeepsANameOfFourCharactersOrFewerAndNeverLeavesTheFolder) {
  EXPECT_EQ(GcdFileName("walk", {GaitSide::None, 12}, ""), "walk-N12.gcd");
  EXPECT_EQ(GcdFileName("sub/abc", {GaitSide::Left, 1}, ""), "sub/abc-L1.gcd");
  EXPECT_EQ(GcdFileName("sub/.c3d", {GaitSide::Left, 1}, ""), "sub/.c3d-L1.gcd");
  EXPECT_EQ(GcdFileName("/a", {GaitSide::Right, 2}, ""), "/a-R2.gcd");
  EXPECT_EQ(GcdFileName("sub/abc", {GaitSide::Left, 1}, "out"), "out/abc-L1.gcd");
  EXPECT_EQ(GcdFileName("sub/\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", {GaitSide::Left, 1}, ""),
            "sub/\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F-L1.gcd")
      << "four characters of two bytes each";
#ifdef _WIN32
  EXPECT_EQ(GcdFileName("sub\\abc", {GaitSide::Left, 1}, ""), "sub\\abc-L1.gcd");
  EXPECT_EQ(GcdFileName("D:abc", {GaitSide::Left, 1}, ""), "D:abc-L1.gcd");
  EXPECT_EQ(GcdFileName("sub\\abc", {GaitSide::Left, 1}, "out\\x"), "out\\x\\abc-L1.gcd");
#endif
}

TEST(GcdFileName, CutsFourCharactersOfAUtf8Path) {
  EXPECT_EQ(GcdFileName("/J\xC3\xBCrgen/G\xC3\xB6.c3d", {GaitSide::Left, 1}, ""),
            "/J\xC3\xBCrgen/G\xC3\xB6-L1.gcd");
  EXPECT_EQ(GcdFileName("/gait/walk.c3\xC3\xA9", {GaitSide::Left, 1}, ""), "/gait/walk-L1.gcd")
      << "a character of two bytes counts once";
}

TEST(GcdFileName, OutputFolderReplacesTheTrialsOwn) {
  EXPECT_EQ(GcdFileName("/gait/walk03.c3d", {GaitSide::Left, 1}, "/out"), "/out/walk03-L1.gcd");
  EXPECT_EQ(GcdFileName("walk03.c3d", {GaitSide::Left, 1}, "out/"), "out/walk03-L1.gcd");
}

TEST_F(GcdFilesTest, OneForEachStrideIsWrittenBesideTheTrial) {
  EXPECT_EQ(Write({}), "Output: " + Path("walk-L1.gcd") + "\nOutput: " + Path("walk-R1.gcd") +
                           "\nOutput: " + Path("walk-L2.gcd") + "\nDone.\n");
  EXPECT_EQ(NamesIn(walk_.Folder().Path()),
            (std::vector<std::string>{"walk-L1.gcd", "walk-L2.gcd", "walk-R1.gcd", "walk.c3d"}));
  clsGcdCalcs calcs(walk_.State());
  EXPECT_EQ(Read("walk-L1.gcd"), GcdText(calcs, 1, {}));
  EXPECT_EQ(Read("walk-R1.gcd"), GcdText(calcs, 2, {}));
  EXPECT_EQ(Read("walk-L2.gcd"), GcdText(calcs, 3, {}));
}

TEST_F(GcdFilesTest, LinesStayOutOfTheDesktopCopy) {
  class PaneOnly : public modAllPurpose::ReportOutput {
   public:
    void BeginReport() override {}
    void AppendOutput(std::string_view /*text*/, bool paneOnly, bool continueLine) override {
      EXPECT_TRUE(paneOnly);
      EXPECT_FALSE(continueLine);
      ++Lines;
    }
    int Lines = 0;
  } output;
  ToldAnswers question({});
  EXPECT_FALSE(WriteGcdFiles(walk_.State(), {}, question, output).IsRejected());
  EXPECT_EQ(output.Lines, 4);
}

TEST_F(GcdFilesTest, YesOverwritesAndAsksForEachExistingFile) {
  Put("walk-L1.gcd", "old");
  Put("walk-L2.gcd", "old");
  const std::string output = Write({OverwriteAnswer::Yes, OverwriteAnswer::Yes});
  EXPECT_TRUE(output.ends_with("Done.\n"));
  EXPECT_EQ(asked_, (std::vector{Path("walk-L1.gcd"), Path("walk-L2.gcd")}));
  EXPECT_TRUE(Read("walk-L1.gcd").starts_with("#!DST-0.1 GCD"));
  EXPECT_TRUE(Read("walk-L2.gcd").starts_with("#!DST-0.1 GCD"));
}

TEST_F(GcdFilesTest, YesToAllAsksOnce) {
  for (const std::string name : {"walk-L1.gcd", "walk-R1.gcd", "walk-L2.gcd"}) Put(name, "old");
  EXPECT_TRUE(Write({OverwriteAnswer::YesToAll}).ends_with("Done.\n"));
  EXPECT_EQ(asked_, std::vector{Path("walk-L1.gcd")});
  for (const std::string name : {"walk-L1.gcd", "walk-R1.gcd", "walk-L2.gcd"}) {
    EXPECT_TRUE(Read(name).starts_with("#!DST-0.1 GCD")) << name;
  }
}

TEST_F(GcdFilesTest, YesToAllLastsForOneCommandOnly) {
  EXPECT_TRUE(Write({}).ends_with("Done.\n"));
  EXPECT_TRUE(Write({OverwriteAnswer::YesToAll}).ends_with("Done.\n"));
  EXPECT_EQ(Write({OverwriteAnswer::Cancel}), "Cancelled.\n");
}

TEST_F(GcdFilesTest, CancelKeepsTheOldFileAndThoseWrittenSoFar) {
  Put("walk-R1.gcd", "old");
  EXPECT_EQ(Write({OverwriteAnswer::Cancel}), "Output: " + Path("walk-L1.gcd") + "\nCancelled.\n");
  EXPECT_EQ(asked_, std::vector{Path("walk-R1.gcd")});
  EXPECT_EQ(Read("walk-R1.gcd"), "old");
  EXPECT_EQ(NamesIn(walk_.Folder().Path()),
            (std::vector<std::string>{"walk-L1.gcd", "walk-R1.gcd", "walk.c3d"}));
}

TEST_F(GcdFilesTest, OutputFolderTakesThemAll) {
  const TemporaryFolder other;
  GcdOptions options;
  options.OutputFolder = other.Path().string();
  EXPECT_TRUE(Write({}, options).starts_with("Output: " + (other / "walk-L1.gcd").string()));
  EXPECT_EQ(NamesIn(other.Path()),
            (std::vector<std::string>{"walk-L1.gcd", "walk-L2.gcd", "walk-R1.gcd"}));
  EXPECT_EQ(NamesIn(walk_.Folder().Path()), std::vector<std::string>{"walk.c3d"});
}

TEST_F(GcdFilesTest, OutputFolderThatIsMissingIsAnError) {
  GcdOptions options;
  options.OutputFolder = Path("missing");
  EXPECT_EQ(ErrorNumberOf([&] { Write({}, options); }), kPathNotFound);
  options.OutputFolder = walk_.File().string();
  EXPECT_EQ(ErrorNumberOf([&] { Write({}, options); }), kPathNotFound) << "a file is no folder";
  EXPECT_EQ(NamesIn(walk_.Folder().Path()), std::vector<std::string>{"walk.c3d"});
}

TEST_F(GcdFilesTest, SubjectOfTheOptionsStandsInTheHeader) {
  GcdOptions options;
  options.Subject = {"m", "2016-01-01", "2026-01-01"};
  Write({}, options);
  EXPECT_TRUE(Read("walk-L1.gcd").find("$Gender\r\nMale\r\n$Age\r\n10.01\r\n") !=
              std::string::npos);
}

TEST_F(GcdFilesTest, SubjectFileOfTheFolderServesTheTrial) {
  Put("subject.ini", "Gender=Female\nDOB=2016-01-01\nDate=2026-01-01\n");
  Write({});
  EXPECT_TRUE(Read("walk-R1.gcd").find("$Gender\r\nFemale\r\n$Age\r\n10.01\r\n") !=
              std::string::npos);
}

TEST_F(GcdFilesTest, StrideWithoutASideIsWrittenUnderTheLetterN) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("NKneeAngles", tests::Standing(1, 2, 3))
      .AddPoint("LKneeAngles", tests::Standing(4, 5, 6));
  OpenedWalk walk(builder.Build(), FindGaitEvents, "walk.c3d");
  walk.State().GaitEvents.ValidStrides[1].Side = GaitSide::None;
  walk.State().GaitEvents.ValidStrides[1].Number = 4;
  ToldAnswers question({});
  modAllPurpose::TextReport output;
  EXPECT_FALSE(WriteGcdFiles(walk.State(), {}, question, output).IsRejected());
  const std::string text = ReadWholeFile(walk.Folder() / "walk-N4.gcd");
  EXPECT_NE(text.find("!NoneStrideTime\r\n"), std::string::npos);
  EXPECT_NE(text.find("!NoneKneeValgVar\r\n1.0\r\n"), std::string::npos);
}

TEST_F(GcdFilesTest, TrialWithoutStridesIsRejected) {
  OpenedWalk walk(sample::TrialBuilder().Build(), FindGaitEvents);
  ToldAnswers question({});
  modAllPurpose::TextReport output;
  const auto result = WriteGcdFiles(walk.State(), {}, question, output);
  EXPECT_EQ(result.Text(), "No valid stride events were found.");
  EXPECT_FALSE(output.Begun());
  EXPECT_EQ(NamesIn(walk.Folder().Path()), std::vector<std::string>{"trial.c3d"});
}

TEST_F(GcdFilesTest, ErrorInACalculationLeavesTheOldFileAsItWas) {
  Put("walk-R1.gcd", "old");
  StrideRecord& stride = walk_.State().GaitEvents.ValidStrides[2];
  stride.StopStrikeTime = stride.StartStrikeTime;
  ToldAnswers question({OverwriteAnswer::Yes});
  modAllPurpose::TextReport output;
  EXPECT_EQ(ErrorNumberOf([&] { (void)WriteGcdFiles(walk_.State(), {}, question, output); }),
            kDivisionByZero);
  EXPECT_EQ(output.Text(), "Output: " + Path("walk-L1.gcd") + "\n");
  EXPECT_EQ(Read("walk-R1.gcd"), "old");
  EXPECT_EQ(NamesIn(walk_.Folder().Path()),
            (std::vector<std::string>{"walk-L1.gcd", "walk-R1.gcd", "walk.c3d"}));
}

TEST_F(GcdFilesTest, FolderOfAFilesNameIsAnErrorAndStays) {
  std::filesystem::create_directory(Path("walk-L1.gcd"));
  EXPECT_EQ(ErrorLineOfWriting({}),
            "Run-time error '75': Path/File access error: " + Path("walk-L1.gcd") + " is a folder");
  EXPECT_TRUE(std::filesystem::is_directory(Path("walk-L1.gcd")));
  EXPECT_EQ(NamesIn(walk_.Folder().Path()), (std::vector<std::string>{"walk-L1.gcd", "walk.c3d"}));
}

TEST_F(GcdFilesTest, MissingFolderIsNamed) {
  GcdOptions options;
  options.OutputFolder = Path("missing");
  try {
    Write({}, options);
    ADD_FAILURE() << "written";
  } catch (const modAllPurpose::RuntimeError& error) {
    EXPECT_EQ(RuntimeErrorLine(error), "Run-time error '76': Path not found: " + Path("missing"));
  }
}

TEST_F(GcdFilesTest, TrialIsNoFileToReplaceWhateverItsName) {
  const std::string refusal =
      "Run-time error '75': Path/File access error: " + Path("walk-L1.gcd") + " is a C3D file";
  std::filesystem::create_hard_link(walk_.File(), Path("walk-L1.gcd"));
  EXPECT_EQ(ErrorLineOfWriting({OverwriteAnswer::YesToAll}), refusal) << "the open one";
  std::filesystem::remove(Path("walk-L1.gcd"));
  const std::string other = std::string("\x02") + "P" + std::string(600, '\0');
  Put("walk-L1.gcd", other);
  EXPECT_EQ(ErrorLineOfWriting({OverwriteAnswer::Yes}), refusal) << "any other";
  EXPECT_EQ(Read("walk-L1.gcd"), other);
}

TEST_F(GcdFilesTest, OpenTrialIsKnownThoughItDoesNotBeginLikeOneAnyMore) {
  std::filesystem::create_hard_link(walk_.File(), Path("walk-R1.gcd"));
  std::fstream(walk_.File(), std::ios::in | std::ios::out | std::ios::binary) << "no";
  EXPECT_EQ(
      ErrorLineOfWriting({OverwriteAnswer::YesToAll}),
      "Run-time error '75': Path/File access error: " + Path("walk-R1.gcd") + " is a C3D file");
}

TEST_F(GcdFilesTest, FileThatCameUpSinceItWasLookedForIsNotReplaced) {
  modVantrel::GcdFiles files(walk_.State(), {});
  Put("walk-R1.gcd", "of another");
  EXPECT_FALSE(files.WriteWhereFree(2));
  EXPECT_EQ(Read("walk-R1.gcd"), "of another");
}

TEST_F(GcdFilesTest, WholeSetIsWrittenOrNothing) {
  modVantrel::GcdFiles files(walk_.State(), {});
  Put("walk-R1.gcd", "old");
  EXPECT_EQ(files.WriteAllWhereFree(), Path("walk-R1.gcd"));
  EXPECT_EQ(NamesIn(walk_.Folder().Path()), (std::vector<std::string>{"walk-R1.gcd", "walk.c3d"}));
  std::filesystem::remove(Path("walk-R1.gcd"));
  EXPECT_EQ(files.WriteAllWhereFree(), "");
  EXPECT_EQ(NamesIn(walk_.Folder().Path()).size(), 4U);
}

TEST_F(GcdFilesTest, ReplacedSetIsLeftAsItWasWhereOneIsATrialOrCannotBeMade) {
  modVantrel::GcdFiles files(walk_.State(), {});
  const auto noneWritten = [](const std::string& name) { ADD_FAILURE() << name; };
  Put("walk-L1.gcd", "old");
  Put("walk-L2.gcd", "\x02P as a trial begins");
  EXPECT_EQ(ErrorNumberOf([&] { files.ReplaceAll(noneWritten); }), 75);
  std::filesystem::remove(Path("walk-L2.gcd"));
  std::filesystem::create_directory(Path("walk-L2.gcd"));
  EXPECT_EQ(ErrorNumberOf([&] { files.ReplaceAll(noneWritten); }), 75);
  std::filesystem::remove(Path("walk-L2.gcd"));
  StrideRecord& stride = walk_.State().GaitEvents.ValidStrides[2];
  stride.StopStrikeTime = stride.StartStrikeTime;
  EXPECT_EQ(ErrorNumberOf([&] { files.ReplaceAll(noneWritten); }), kDivisionByZero);
  EXPECT_EQ(Read("walk-L1.gcd"), "old");
}

TEST_F(GcdFilesTest, ReplacedSetIsToldInTheOrderOfTheStridesOnceItIsThere) {
  modVantrel::GcdFiles files(walk_.State(), {});
  Put("walk-L1.gcd", "old");
  std::vector<std::string> told;
  files.ReplaceAll([&](const std::string& name) {
    EXPECT_EQ(NamesIn(walk_.Folder().Path()).size(), 4U) << "all are there";
    told.push_back(name);
  });
  EXPECT_EQ(told, (std::vector{files.Name(1), files.Name(2), files.Name(3)}));
  EXPECT_NE(Read("walk-L1.gcd"), "old");
}

TEST_F(GcdFilesTest, TrialUnderAUtf8PathIsWrittenBesideIt) {
  OpenedWalk walk(ThreeStrides(), FindGaitEvents, "G\xC3\xB6nne.c3d");
  ToldAnswers question({});
  modAllPurpose::TextReport output;
  EXPECT_FALSE(WriteGcdFiles(walk.State(), {}, question, output).IsRejected());
  EXPECT_TRUE(modAllPurpose::FileExists((walk.Folder() / "G\xC3\xB6nne-R1.gcd").string()));
}

}  // namespace
