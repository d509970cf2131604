// SPDX-License-Identifier: GPL-3.0-or-later

// The program as a process: its command line, its message boxes and its exit status.

#include <filesystem>

#include <QProcess>
#include <QProcessEnvironment>
#include <QSettings>
#include <gtest/gtest.h>

#include "sample/SampleWalk.h"
#include "sample/TrialBuilder.h"
#include "tests/TestTrials.h"
#include "tests/app/ConfigFolder.h"

namespace {

using sample::TrialBuilder;

struct Outcome {
  int ExitCode = -1;
  QProcess::ExitStatus Ended = QProcess::CrashExit;
  std::string Output;
};

class Program : public ::testing::Test {
 protected:
  std::string Write(const sample::Trial& trial, const std::string& name) {
    trial.WriteTo(folder_ / name);
    return (folder_ / name).string();
  }

  // Runs the program with these arguments and lets its user click these buttons.
  Outcome Start(const QStringList& arguments, const char* clicks = "",
                const char* deployment = nullptr) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (deployment != nullptr) {
      environment.insert(QStringLiteral("VANTREL_TEST_DEPLOYMENT"), QLatin1String(deployment));
    }
    environment.insert(QStringLiteral("VANTREL_TEST_CLICKS"), QString::fromLatin1(clicks));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(VANTREL_WATCHED), arguments);
    EXPECT_TRUE(program.waitForFinished());
    return {program.exitCode(), program.exitStatus(),
            program.readAllStandardOutput().toStdString()};
  }

  Outcome Start(const std::string& argument, const char* clicks = "") {
    return Start(QStringList(QString::fromStdString(argument)), clicks);
  }

  tests::TemporaryFolder folder_;
  tests::ConfigFolder config_{(folder_ / "config").string()};
};

TEST_F(Program, ClosedByItsUserEndsWithStatusZero) {
  const Outcome run = Start(QStringList());
  EXPECT_EQ(run.Ended, QProcess::NormalExit);
  EXPECT_EQ(run.ExitCode, 0);
  EXPECT_EQ(run.Output, "pane: \ncaption: Vantrel\n");
}

TEST_F(Program, EndsWithStatusZeroByTheExitButton) {
  const Outcome run = Start(Write(sample::SampleWalk().Build(), "walk.c3d"), "cmdExit");
  EXPECT_EQ(run.Ended, QProcess::NormalExit);
  EXPECT_EQ(run.ExitCode, 0);
  EXPECT_EQ(run.Output, "");
}

TEST_F(Program, OpensTheFileOnItsCommandLine) {
  const std::string walk = Write(sample::SampleWalk().Build(), "walk.c3d");
  EXPECT_EQ(Start(walk).Output, "pane: \ncaption: " + walk + "\n");
}

TEST_F(Program, ShowsTheCurvesOfTheFileWhereTheyAreAskedFor) {
  const std::string walk = Write(sample::SampleWalk().Build(), "walk.c3d");
  EXPECT_EQ(Start({QStringLiteral("--curves"), QString::fromStdString(walk)}).Output,
            "pane: \ncaption: " + walk + "\ncurves: shown\n");
}

#ifdef _WIN32
using ProgramOnADesktop = Program;

TEST_F(ProgramOnADesktop, TakesItsColoursWhereTheyAreDark) {
  QSettings desktop(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                   "CurrentVersion\\Themes\\Personalize"),
                    QSettings::NativeFormat);
  desktop.setValue(QStringLiteral("AppsUseLightTheme"), 0);
  desktop.sync();
  const Outcome run = Start(QStringList());
  desktop.remove(QStringLiteral("AppsUseLightTheme"));
  desktop.sync();
  EXPECT_EQ(run.Output, "pane: \ncaption: Vantrel\ncolours: dark\n");
}
#endif

TEST_F(Program, TakesSeveralArgumentsForOnePathWithBlanks) {
  const std::string walk = Write(sample::SampleWalk().Build(), "left foot walk.c3d");
  EXPECT_EQ(Start(QString::fromStdString(walk).split(u' ')).Output,
            "pane: \ncaption: " + walk + "\n");
}

TEST_F(Program, TakesSeveralFilesAsIfTheyWereDroppedOnItsWindow) {
  const std::string first = Write(sample::SampleWalk().Build(), "walk 1.c3d");
  const std::string second = Write(sample::SampleWalk().Build(), "walk 2.c3d");
  EXPECT_EQ(Start({QString::fromStdString(first), QString::fromStdString(second)}).Output,
            "pane: \nwindow: shown\ntitle: Vantrel\n"
            "text: One file can be open at a time.  Of the 2 files that were dropped the first was "
            "taken, the others were left.\n"
            "pane: \ncaption: " +
                first + "\n");
}

TEST_F(Program, DropsTheQuotesOfAPathThatStillHasThem) {
  const std::string walk = Write(sample::SampleWalk().Build(),
                                 "gr\xC3\xBC\xC3\x9F"
                                 "e 1.c3d");
  EXPECT_EQ(Start('"' + walk + '"').Output, "pane: \ncaption: " + walk + "\n");
}

TEST_F(Program, AFailedOpenAtStartIsToldAndTheWindowComesUp) {
  const Outcome run = Start((folder_ / "nowhere.c3d").string());
  EXPECT_EQ(run.Output,
            "pane: \nwindow: hidden\ntitle: Vantrel\n"
            "text: File open error while attempting to open C3D file.\n"
            "pane: \ncaption: Vantrel\n");
  EXPECT_EQ(run.ExitCode, 0);
}

TEST_F(Program, AnErrorInAReportShowsWhatWasWrittenThenItsBoxAndEndsWithStatusOne) {
  constexpr std::int32_t kTimedEventsCountPosition = 301;
  TrialBuilder builder;
  for (int i = 0; i < 18; ++i) builder.AddHeaderEvent("RHS", 0.5F, 1);
  sample::Trial trial = builder.Build();
  trial.SetInteger(kTimedEventsCountPosition, 19);
  const Outcome run = Start(Write(trial, "events.c3d"), "cmdShowHeaderInfo");
  EXPECT_EQ(run.Ended, QProcess::NormalExit);
  EXPECT_EQ(run.ExitCode, 1);
  EXPECT_TRUE(run.Output.starts_with("pane: OpenC3dFileSpec: ")) << run.Output;
  EXPECT_TRUE(
      run.Output.ends_with("|  18  0.5000  1  'RHS'|\nwindow: shown\ntitle: Vantrel\n"
                           "text: Run-time error '9':||Subscript out of range\n"))
      << run.Output;
}

TEST_F(Program, WhoseDeploymentRefusesEndsWithoutAWindowOrAnOpen) {
  const QStringList file(QString::fromStdString((folder_ / "nowhere.c3d").string()));
  const Outcome run = Start(file, "", "refuses");
  EXPECT_EQ(run.Ended, QProcess::NormalExit);
  EXPECT_EQ(run.ExitCode, 0);
  EXPECT_EQ(run.Output, "deployment: asked\ntitle: Vantrel\ntext: Error copying program file.\n");
}

TEST_F(Program, AsksItsDeploymentOnceAndGoesOn) {
  const QString walk = QString::fromStdString(Write(sample::SampleWalk().Build(), "walk.c3d"));
  const Outcome run = Start(QStringList(walk), "", "goes on");
  EXPECT_EQ(run.ExitCode, 0);
  EXPECT_EQ(run.Output, "deployment: asked\npane: \ncaption: " + walk.toStdString() + "\n");
}

TEST_F(Program, AnErrorInTheOpenAtStartEndsBeforeTheWindowIsShown) {
  sample::Trial trial = TrialBuilder().Build();
  trial.ClaimFrames(-1, 32767);
  const Outcome run = Start(Write(trial, "overflow.c3d"));
  EXPECT_EQ(run.Ended, QProcess::NormalExit);
  EXPECT_EQ(run.ExitCode, 1);
  EXPECT_EQ(run.Output,
            "pane: \nwindow: hidden\ntitle: Vantrel\ntext: Run-time error '6':||Overflow\n");
}

}  // namespace
