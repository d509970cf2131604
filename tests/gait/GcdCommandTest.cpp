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
#include "support/FileSystem.h"
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

  std::vector<std::string> Asked;

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

class GcdFiles : public testing::Test {
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
    return output.Text();
  }

  OpenedWalk walk_{ThreeStrides(), FindGaitEvents, "walk.c3d"};
  std::vector<std::string> asked_;
};

TEST(GcdFileName, EndsInSideLetterAndNumber) {
  EXPECT_EQ(GcdFileName("D:\\gait\\walk03.c3d", {kSideLeft, 2}, ""), "D:\\gait\\walk03-L2.gcd");
  EXPECT_EQ(GcdFileName("/gait/walk03.C3D", {kSideRight, 1}, ""), "/gait/walk03-R1.gcd");
  EXPECT_EQ(GcdFileName("walk", {kSideNone, 12}, ""), "-N12.gcd") << "four characters are cut";
}

TEST(GcdFileName, CutsFourCharactersOfAUtf8Path) {
  EXPECT_EQ(GcdFileName("/J\xC3\xBCrgen/G\xC3\xB6.c3d", {kSideLeft, 1}, ""),
            "/J\xC3\xBCrgen/G\xC3\xB6-L1.gcd");
  EXPECT_EQ(GcdFileName("/gait/walk.c3\xC3\xA9", {kSideLeft, 1}, ""), "/gait/walk-L1.gcd")
      << "a character of two bytes counts once";
}

TEST(GcdFileName, OutputFolderReplacesTheTrialsOwn) {
  EXPECT_EQ(GcdFileName("/gait/walk03.c3d", {kSideLeft, 1}, "/out"), "/out/walk03-L1.gcd");
  EXPECT_EQ(GcdFileName("walk03.c3d", {kSideLeft, 1}, "out/"), "out/walk03-L1.gcd");
}

TEST_F(GcdFiles, OneForEachStrideIsWrittenBesideTheTrial) {
  EXPECT_EQ(Write({}), "Output: " + Path("walk-L1.gcd") + "\nOutput: " + Path("walk-R1.gcd") +
                           "\nOutput: " + Path("walk-L2.gcd") + "\nDone.\n");
  EXPECT_EQ(NamesIn(walk_.Folder().Path()),
            (std::vector<std::string>{"walk-L1.gcd", "walk-L2.gcd", "walk-R1.gcd", "walk.c3d"}));
  clsGcdCalcs calcs(walk_.State());
  EXPECT_EQ(Read("walk-L1.gcd"), calcs.GcdText(1, "!Left", "L", {}));
  EXPECT_EQ(Read("walk-R1.gcd"), calcs.GcdText(2, "!Right", "R", {}));
  EXPECT_EQ(Read("walk-L2.gcd"), calcs.GcdText(3, "!Left", "L", {}));
}

TEST_F(GcdFiles, LinesStayOutOfTheDesktopCopy) {
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

TEST_F(GcdFiles, YesOverwritesAndAsksForEachExistingFile) {
  Put("walk-L1.gcd", "old");
  Put("walk-L2.gcd", "old");
  const std::string output = Write({OverwriteAnswer::Yes, OverwriteAnswer::Yes});
  EXPECT_TRUE(output.ends_with("Done.\n"));
  EXPECT_EQ(asked_, (std::vector{Path("walk-L1.gcd"), Path("walk-L2.gcd")}));
  EXPECT_TRUE(Read("walk-L1.gcd").starts_with("#!DST-0.1 GCD"));
  EXPECT_TRUE(Read("walk-L2.gcd").starts_with("#!DST-0.1 GCD"));
}

TEST_F(GcdFiles, YesToAllAsksOnce) {
  for (const std::string name : {"walk-L1.gcd", "walk-R1.gcd", "walk-L2.gcd"}) Put(name, "old");
  EXPECT_TRUE(Write({OverwriteAnswer::YesToAll}).ends_with("Done.\n"));
  EXPECT_EQ(asked_, std::vector{Path("walk-L1.gcd")});
  for (const std::string name : {"walk-L1.gcd", "walk-R1.gcd", "walk-L2.gcd"}) {
    EXPECT_TRUE(Read(name).starts_with("#!DST-0.1 GCD")) << name;
  }
}

TEST_F(GcdFiles, YesToAllLastsForOneCommandOnly) {
  EXPECT_TRUE(Write({}).ends_with("Done.\n"));
  EXPECT_TRUE(Write({OverwriteAnswer::YesToAll}).ends_with("Done.\n"));
  EXPECT_EQ(Write({OverwriteAnswer::Cancel}), "Cancelled.\n");
}

TEST_F(GcdFiles, CancelKeepsTheOldFileAndThoseWrittenSoFar) {
  Put("walk-R1.gcd", "old");
  EXPECT_EQ(Write({OverwriteAnswer::Cancel}), "Output: " + Path("walk-L1.gcd") + "\nCancelled.\n");
  EXPECT_EQ(asked_, std::vector{Path("walk-R1.gcd")});
  EXPECT_EQ(Read("walk-R1.gcd"), "old");
  EXPECT_EQ(NamesIn(walk_.Folder().Path()),
            (std::vector<std::string>{"walk-L1.gcd", "walk-R1.gcd", "walk.c3d"}));
}

TEST_F(GcdFiles, OutputFolderTakesThemAll) {
  const TemporaryFolder other;
  GcdOptions options;
  options.OutputFolder = other.Path().string();
  EXPECT_TRUE(Write({}, options).starts_with("Output: " + (other / "walk-L1.gcd").string()));
  EXPECT_EQ(NamesIn(other.Path()),
            (std::vector<std::string>{"walk-L1.gcd", "walk-L2.gcd", "walk-R1.gcd"}));
  EXPECT_EQ(NamesIn(walk_.Folder().Path()), std::vector<std::string>{"walk.c3d"});
}

TEST_F(GcdFiles, OutputFolderThatIsMissingIsAnError) {
  GcdOptions options;
  options.OutputFolder = Path("missing");
  EXPECT_EQ(ErrorNumberOf([&] { Write({}, options); }), kPathNotFound);
  options.OutputFolder = walk_.File().string();
  EXPECT_EQ(ErrorNumberOf([&] { Write({}, options); }), kPathNotFound) << "a file is no folder";
  EXPECT_EQ(NamesIn(walk_.Folder().Path()), std::vector<std::string>{"walk.c3d"});
}

TEST_F(GcdFiles, SubjectOfTheOptionsStandsInTheHeader) {
  GcdOptions options;
  options.Subject = {"m", "2016-01-01", "2026-01-01"};
  Write({}, options);
  EXPECT_TRUE(Read("walk-L1.gcd").find("$Gender\r\nMale\r\n$Age\r\n10.01\r\n") !=
              std::string::npos);
}

TEST_F(GcdFiles, SubjectFileOfTheFolderServesTheTrial) {
  Put("subject.ini", "Gender=Female\nDOB=2016-01-01\nDate=2026-01-01\n");
  Write({});
  EXPECT_TRUE(Read("walk-R1.gcd").find("$Gender\r\nFemale\r\n$Age\r\n10.01\r\n") !=
              std::string::npos);
}

TEST_F(GcdFiles, StrideWithoutASideIsWrittenUnderTheLetterN) {
  sample::TrialBuilder builder = tests::WholeFrameTrial();
  builder.AddPoint("NKneeAngles", tests::Standing(1, 2, 3))
      .AddPoint("LKneeAngles", tests::Standing(4, 5, 6));
  OpenedWalk walk(builder.Build(), FindGaitEvents, "walk.c3d");
  walk.State().GaitEvents.ValidStrides[1].Side = kSideNone;
  walk.State().GaitEvents.ValidStrides[1].Number = 4;
  ToldAnswers question({});
  modAllPurpose::TextReport output;
  EXPECT_FALSE(WriteGcdFiles(walk.State(), {}, question, output).IsRejected());
  const std::string text = ReadWholeFile(walk.Folder() / "walk-N4.gcd");
  EXPECT_NE(text.find("!NoneStrideTime\r\n"), std::string::npos);
  EXPECT_NE(text.find("!NoneKneeValgVar\r\n1.0\r\n"), std::string::npos);
}

TEST_F(GcdFiles, TrialWithoutStridesIsRejected) {
  OpenedWalk walk(sample::TrialBuilder().Build(), FindGaitEvents);
  ToldAnswers question({});
  modAllPurpose::TextReport output;
  const auto result = WriteGcdFiles(walk.State(), {}, question, output);
  EXPECT_EQ(result.Text(), "No valid stride events were found.");
  EXPECT_FALSE(output.Begun());
  EXPECT_EQ(NamesIn(walk.Folder().Path()), std::vector<std::string>{"trial.c3d"});
}

TEST_F(GcdFiles, ErrorInACalculationLeavesTheOldFileAsItWas) {
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

TEST_F(GcdFiles, FolderOfAFilesNameIsAnErrorAndStays) {
  std::filesystem::create_directory(Path("walk-L1.gcd"));
  ToldAnswers question({});
  modAllPurpose::TextReport output;
#ifdef _WIN32  // which refuses as it refuses a file that is in use
  constexpr int kExpected = 70;
#else
  constexpr int kExpected = 75;
#endif
  EXPECT_EQ(ErrorNumberOf([&] { (void)WriteGcdFiles(walk_.State(), {}, question, output); }),
            kExpected);
  EXPECT_TRUE(std::filesystem::is_directory(Path("walk-L1.gcd")));
  EXPECT_EQ(NamesIn(walk_.Folder().Path()), (std::vector<std::string>{"walk-L1.gcd", "walk.c3d"}));
}

TEST_F(GcdFiles, TrialUnderAUtf8PathIsWrittenBesideIt) {
  OpenedWalk walk(ThreeStrides(), FindGaitEvents, "G\xC3\xB6nne.c3d");
  ToldAnswers question({});
  modAllPurpose::TextReport output;
  EXPECT_FALSE(WriteGcdFiles(walk.State(), {}, question, output).IsRejected());
  EXPECT_TRUE(modAllPurpose::FileExists((walk.Folder() / "G\xC3\xB6nne-R1.gcd").string()));
}

}  // namespace
