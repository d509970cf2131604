// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "deploy/DeployDependencies.h"
#include "tests/deploy/FakeHost.h"

namespace {

using modVantrel_PatchUp::DeployDependencies;
using modWindowsFileInfo::FileTimes;
using modWindowsFileInfo::LocalTime;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using tests::AppendTimes;
using tests::FakeHost;
using tests::LibraryNames;
using tests::Steps;
using namespace std::chrono_literals;

const std::string kDeleteOldFixer = R"(delete C:\Gait\vantrel_Fix.exe)";

// What the program does once it has written something.
const Steps kHandOver = {
    R"(copy C:\Gait\vantrel.exe to C:\Gait\vantrel_Fix.exe)",
    "wait 5000 ms",
    R"(read times C:\Gait\vantrel_Fix.exe)",
    R"(set times C:\Gait\vantrel_Fix.exe)",
    "wait 1000 ms",
    R"(start C:\Gait\vantrel_Fix.exe minimised)",
};

Steps operator+(Steps steps, const Steps& more) {
  AppendTimes(steps, 1, more);
  return steps;
}

FileTimes SomeTimes() {
  return {LocalTime(std::chrono::sys_days(2020y / 1 / 2).time_since_epoch()),
          LocalTime(std::chrono::sys_days(2021y / 3 / 4).time_since_epoch()),
          LocalTime(std::chrono::sys_days(2022y / 5 / 6).time_since_epoch())};
}

// The program in a folder where nothing else is.
class FreshProgram : public testing::Test {
 protected:
  FreshProgram() {
    FakeHost::CarryEverything(host_);
    host_.Times[host_.Program] = SomeTimes();
  }

  std::size_t Written() const {
    return static_cast<std::size_t>(std::ranges::count_if(
        host_.Steps, [](const std::string& step) { return step.starts_with("write "); }));
  }

  Steps LastSteps(std::size_t count) const {
    return {host_.Steps.end() - static_cast<std::ptrdiff_t>(count), host_.Steps.end()};
  }

  FakeHost host_;
};

// The program with the manifest and every library in place.
class InstalledProgram : public FreshProgram {
 protected:
  InstalledProgram() { FakeHost::PutEverythingInPlace(host_); }
};

TEST_F(FreshProgram, WritesTheManifestAndTheLibrariesInOrderAndHandsOver) {
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, ElementsAreArray(Steps{
                                                kDeleteOldFixer,
                                                R"(make folder C:\Gait\Dependencies\)",
                                                R"(write C:\Gait\vantrel.exe.manifest)",
                                                R"(write C:\Gait\Dependencies\comdlg32.ocx)",
                                                R"(write C:\Gait\Dependencies\mscomct2.ocx)",
                                                R"(write C:\Gait\Dependencies\mscomctl.ocx)",
                                                R"(write C:\Gait\Dependencies\richtx32.ocx)",
                                                R"(write C:\Gait\Dependencies\tabctl32.ocx)",
                                                R"(write C:\Gait\Dependencies\dao360.dll)",
                                            } +
                                            kHandOver));
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\vantrel.exe.manifest)"), "manifest");
  for (const auto& name : LibraryNames()) {
    EXPECT_EQ(host_.Files.at(R"(C:\Gait\Dependencies\)" + name), "is " + name);
  }
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\vantrel_Fix.exe)"), "program");
}

TEST_F(FreshProgram, MovesOnlyTheFixersLastWriteAHundredthOfADayBack) {
  EXPECT_FALSE(DeployDependencies(host_));
  FileTimes expected = SomeTimes();
  expected.LastWrite -= 14min + 24s;
  EXPECT_EQ(host_.Times.at(R"(C:\Gait\vantrel_Fix.exe)"), expected);
  EXPECT_EQ(host_.Times.at(host_.Program), SomeTimes());
}

TEST_F(FreshProgram, StartsTheFixerThoughItsTimesCannotBeRead) {
  host_.ReadingTimesFails = true;
  EXPECT_FALSE(DeployDependencies(host_));
  Steps expected = kHandOver;
  expected.erase(expected.begin() + 3);
  EXPECT_EQ(LastSteps(expected.size()), expected);
}

TEST_F(FreshProgram, StartsTheFixerThoughItsTimesCannotBeSet) {
  host_.SettingTimesFails = true;
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_EQ(LastSteps(kHandOver.size()), kHandOver);
  EXPECT_EQ(host_.Times.at(R"(C:\Gait\vantrel_Fix.exe)"), SomeTimes());
}

TEST_F(FreshProgram, InTheRootOfADriveWritesBesideItself) {
  host_.Program = R"(C:\vantrel.exe)";
  host_.Folders = {"C:"};
  host_.Files[host_.Program] = "program";
  host_.Times[host_.Program] = SomeTimes();
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_TRUE(host_.Files.contains(R"(C:\vantrel.exe.manifest)"));
  EXPECT_TRUE(host_.Files.contains(R"(C:\Dependencies\dao360.dll)"));
}

TEST_F(FreshProgram, IsKnownByItsNameInLowerCase) {
  host_.Program = R"(C:\Gait\VanTrel.EXE)";
  host_.Files[host_.Program] = "program";
  host_.Times[host_.Program] = SomeTimes();
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, Contains(R"(write C:\Gait\vantrel.exe.manifest)"));
  EXPECT_THAT(host_.Steps, Contains(R"(copy C:\Gait\VanTrel.EXE to C:\Gait\vantrel_Fix.exe)"));
}

TEST_F(FreshProgram, IsKnownByItsNameInLowerCaseOutsideAsciiToo) {
  host_.Program = "C:\\Gait\\\xC3\x84RZTE.EXE";
  host_.Files[host_.Program] = "program";
  host_.Times[host_.Program] = SomeTimes();
  host_.Resources["Manifest/\xC3\xA4rzte.exe.manifest"] = "of a name with an umlaut";
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_EQ(host_.Files.at("C:\\Gait\\\xC3\xA4rzte.exe.manifest"), "of a name with an umlaut");
}

TEST_F(FreshProgram, WithoutExeAtItsEndIsKnownByANameWithIt) {
  host_.Program = R"(C:\Gait\vantrel)";
  host_.Files[host_.Program] = "program";
  host_.Times[host_.Program] = SomeTimes();
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, Contains(R"(write C:\Gait\vantrel.exe.manifest)"));
  EXPECT_THAT(host_.Steps, Contains(R"(copy C:\Gait\vantrel to C:\Gait\vantrel_Fix.exe)"));
}

TEST_F(FreshProgram, WithBlanksInItsNameFindsItsManifestWithoutThem) {
  host_.Program = R"(C:\Gait\my vantrel.exe)";
  host_.Resources["Manifest/myvantrel.exe.manifest"] = "mine";
  host_.Files[host_.Program] = "program";
  host_.Times[host_.Program] = SomeTimes();
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\my vantrel.exe.manifest)"), "mine");
}

TEST_F(FreshProgram, RenamedToANameWithoutAManifestStillWritesItsLibraries) {
  host_.Program = R"(C:\Gait\other.exe)";
  host_.Files[host_.Program] = "program";
  host_.Times[host_.Program] = SomeTimes();
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_FALSE(host_.Files.contains(R"(C:\Gait\other.exe.manifest)"));
  EXPECT_EQ(Written(), LibraryNames().size());
  EXPECT_THAT(host_.Steps, Each(Not(HasSubstr("message"))));
}

TEST_F(FreshProgram, WithAPendingErrorDoesNothingAndGoesOn) {
  host_.Pending = true;
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, IsEmpty());
  EXPECT_THAT(host_.Looks, IsEmpty());
}

TEST_F(FreshProgram, ThatDoesNotKnowItsPathDoesNothingAndGoesOn) {
  host_.Program.clear();
  host_.Pending = true;
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, IsEmpty());
}

TEST_F(FreshProgram, WithTheMarkerFileChecksNothingElseAndGoesOn) {
  host_.Files[R"(C:\Gait\vantrel.exe.manifest1)"] = "";
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, IsEmpty());
  EXPECT_THAT(host_.Looks, ElementsAre(R"(C:\Gait\vantrel.exe.manifest1)"));
}

TEST_F(FreshProgram, InAFolderThatTakesNoFilesGoesOnWithoutAMessage) {
  host_.Unwritable = {R"(C:\Gait\Dependencies\)", R"(C:\Gait\vantrel.exe.manifest)"};
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_EQ(host_.Files.size(), 1U) << "the program alone";
  EXPECT_THAT(host_.Steps, Each(Not(HasSubstr("message"))));
  EXPECT_THAT(host_.Steps, Each(Not(HasSubstr("start"))));
}

TEST_F(FreshProgram, WithoutAnyResourceGoesOnWithoutAMessage) {
  host_.Resources.clear();
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, ElementsAre(kDeleteOldFixer, R"(make folder C:\Gait\Dependencies\)"));
}

TEST_F(FreshProgram, ThatCannotCopyItselfTriesTwelveTimesAndEndsWithTheMessage) {
  host_.FailingCopies = 12;
  EXPECT_FALSE(DeployDependencies(host_));
  Steps expected;
  AppendTimes(expected, 11, {kHandOver[0], "wait 5000 ms"});
  expected.insert(expected.end(), {kHandOver[0], "message Error copying program file."});
  EXPECT_EQ(LastSteps(expected.size()), expected);
}

TEST_F(FreshProgram, ThatCannotStartTheFixerTriesTwelveTimesAndEndsWithTheMessage) {
  host_.FailingStarts = 12;
  EXPECT_FALSE(DeployDependencies(host_));
  Steps expected;
  AppendTimes(expected, 11, {kHandOver.back(), "wait 5000 ms"});
  expected.insert(expected.end(), {kHandOver.back(), "message Error running main program file."});
  EXPECT_EQ(LastSteps(expected.size()), expected);
}

TEST_F(InstalledProgram, GoesOnAtOnce) {
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, ElementsAre(kDeleteOldFixer));
}

TEST_F(InstalledProgram, RemovesTheFixerOfAnEarlierStart) {
  host_.Files[R"(C:\Gait\vantrel_Fix.exe)"] = "fixer";
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_FALSE(host_.Files.contains(R"(C:\Gait\vantrel_Fix.exe)"));
}

TEST_F(InstalledProgram, GoesOnThoughAnOldFixerCannotBeRemoved) {
  host_.Files[R"(C:\Gait\vantrel_Fix.exe)"] = "fixer";
  host_.Undeletable = {R"(C:\Gait\vantrel_Fix.exe)"};
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_TRUE(host_.Files.contains(R"(C:\Gait\vantrel_Fix.exe)"));
}

TEST_F(InstalledProgram, KeepsFilesOfOtherContent) {
  host_.Files[R"(C:\Gait\vantrel.exe.manifest)"] = "another";
  host_.Files[R"(C:\Gait\Dependencies\dao360.dll)"] = "newer";
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\vantrel.exe.manifest)"), "another");
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\Dependencies\dao360.dll)"), "newer");
}

TEST_F(InstalledProgram, WithoutItsManifestWritesItAndHandsOver) {
  host_.Files.erase(R"(C:\Gait\vantrel.exe.manifest)");
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps,
              ElementsAreArray(Steps{kDeleteOldFixer, R"(write C:\Gait\vantrel.exe.manifest)"} +
                               kHandOver));
}

TEST_F(InstalledProgram, WithAFolderInPlaceOfItsManifestGoesOnAndKeepsTheFolder) {
  host_.Files.erase(R"(C:\Gait\vantrel.exe.manifest)");
  host_.Folders.insert(R"(C:\Gait\vantrel.exe.manifest)");
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, ElementsAre(kDeleteOldFixer, R"(write C:\Gait\vantrel.exe.manifest)"));
}

TEST_F(InstalledProgram, WithoutItsFolderMakesItAndWritesEveryLibrary) {
  host_.Folders.erase(R"(C:\Gait\Dependencies)");
  std::erase_if(host_.Files, [](const auto& file) {
    return file.first.starts_with(R"(C:\Gait\Dependencies\)");
  });
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, Contains(R"(make folder C:\Gait\Dependencies\)"));
  EXPECT_EQ(Written(), LibraryNames().size());
}

TEST_F(InstalledProgram, WithAFileInPlaceOfItsFolderGoesOnWithoutAMessage) {
  host_.Folders.erase(R"(C:\Gait\Dependencies)");
  host_.Files = {{host_.Program, "program"},
                 {R"(C:\Gait\vantrel.exe.manifest)", "manifest"},
                 {R"(C:\Gait\Dependencies)", "a file"}};
  host_.Unwritable = {R"(C:\Gait\Dependencies\)"};
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_EQ(host_.Files.size(), 3U);
}

class OneLibrary : public InstalledProgram, public testing::WithParamInterface<std::string> {
 protected:
  static std::string Path() { return R"(C:\Gait\Dependencies\)" + GetParam(); }
};

TEST_P(OneLibrary, MissingAloneIsWrittenAndHandsOver) {
  host_.Files.erase(Path());
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, ElementsAreArray(Steps{kDeleteOldFixer, "write " + Path()} + kHandOver));
  EXPECT_EQ(host_.Files.at(Path()), "is " + GetParam());
}

TEST_P(OneLibrary, ThatCannotBeWrittenIsNotReportedAndLeavesNothing) {
  host_.Files.erase(Path());
  host_.Unwritable = {Path()};
  EXPECT_TRUE(DeployDependencies(host_)) << "nothing was written";
  EXPECT_THAT(host_.Steps, ElementsAre(kDeleteOldFixer, "write " + Path()));
}

TEST_P(OneLibrary, WithAFolderInItsPlaceIsNotReportedAndKeepsTheFolder) {
  host_.Files.erase(Path());
  host_.Folders.insert(Path());
  EXPECT_TRUE(DeployDependencies(host_)) << "nothing was written";
  EXPECT_THAT(host_.Steps, ElementsAre(kDeleteOldFixer, "write " + Path()));
}

TEST_P(OneLibrary, ThatTheProgramDoesNotCarryIsNotReported) {
  host_.Files.erase(Path());
  host_.Resources.erase("Dependencies/" + GetParam());
  EXPECT_TRUE(DeployDependencies(host_));
  EXPECT_THAT(host_.Steps, ElementsAre(kDeleteOldFixer));
}

INSTANTIATE_TEST_SUITE_P(Each, OneLibrary, testing::ValuesIn(LibraryNames()),
                         [](const auto& library) {
                           return library.param.substr(0, library.param.find('.'));
                         });

TEST_F(FreshProgram, OneLibraryThatCannotBeWrittenDoesNotKeepTheOthersOut) {
  host_.Unwritable = {R"(C:\Gait\Dependencies\comdlg32.ocx)"};
  EXPECT_FALSE(DeployDependencies(host_));
  EXPECT_FALSE(host_.Files.contains(R"(C:\Gait\Dependencies\comdlg32.ocx)"));
  EXPECT_TRUE(host_.Files.contains(R"(C:\Gait\Dependencies\dao360.dll)"));
}

}  // namespace
