// SPDX-License-Identifier: GPL-3.0-or-later

// The status line: what it says, that it shows the checkup, and that the checkup beside the window
// never keeps anybody waiting.

#include <atomic>
#include <chrono>
#include <thread>

#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>

#include "app/CheckupRun.h"
#include "app/FormLayout.h"
#include "app/StatusLine.h"
#include "reports/CheckReport.h"
#include "support/StoppableWork.h"
#include "tests/app/WindowFixture.h"

namespace {

using app::CheckupCounts;
using app::CheckupRun;
using app::CheckupStage;
using app::StatusLine;
using modAllPurpose::StoppableWork;
using modVantrel::Finding;
using modVantrel::Severity;

class WindowStatus : public tests::WindowTest {
 protected:
  StatusLine* Line() { return Control<StatusLine>("status"); }
  QString Said() { return Line()->accessibleName(); }
  void AwaitCheckup() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return Said().contains(QStringLiteral("found")); }));
  }
  // A stride whose direction nothing tells.
  std::string WriteWalkWithoutToes() {
    sample::TrialBuilder builder;
    builder.Frames(1, 400);
    builder.AddEvent("Left", "Foot Strike", 1.0F)
        .AddEvent("Right", "Foot Off", 1.1F)
        .AddEvent("Right", "Foot Strike", 1.5F)
        .AddEvent("Left", "Foot Off", 1.6F)
        .AddEvent("Left", "Foot Strike", 2.0F);
    return Write(builder.Build(), "no toes.c3d");
  }
};

TEST_F(WindowStatus, WithoutAFileSaysSoAndIsPassedOverByTheKeys) {
  Start();
  EXPECT_EQ(Said(), QStringLiteral("No file open"));
  EXPECT_EQ(Line()->ShownLines(), QStringList(QStringLiteral("No file open")));
  Box("txtAnalogLabel")->setFocus();
  QTest::keyClick(Box("txtAnalogLabel"), Qt::Key_Tab);
  EXPECT_TRUE(Button("cmdShowAnalogData")->hasFocus());
}

TEST_F(WindowStatus, StandsRightOfTheBoxOfAnalogLabelsAndCoversNothing) {
  const QRect place = Line()->geometry();
  EXPECT_TRUE(
      place.contains(QPoint(place.center().x(), Box("txtAnalogLabel")->geometry().center().y())));
  EXPECT_EQ(place.left(), Button("cmdShowAnalogDataWithEvents")->x());
  EXPECT_EQ(place.width(), app::kHalfWidth);
}

TEST_F(WindowStatus, SaysFileFramesRateStridesAndFindings) {
  Start(WriteSampleWalk());
  EXPECT_TRUE(Said().endsWith(QStringLiteral("The checkup is running.")));
  AwaitCheckup();
  ASSERT_TRUE(reports::CheckFile(form_.OpenFileSpec()).empty());
  EXPECT_EQ(Said(),
            QStringLiteral("walk.c3d: 460 frames at 100 Hz; 3 left and 3 right strides. The "
                           "checkup found 0 errors, 0 warnings and 0 notes; a click shows it."));
  EXPECT_EQ(Line()->ShownLines(), QStringList({QStringLiteral("walk.c3d  460 frames, 100 Hz"),
                                               QStringLiteral("L 3, R 3 \u00b7 no findings")}));
  EXPECT_EQ(QTextDocumentFragment::fromHtml(Line()->toolTip()).toPlainText(), Said());
}

TEST_F(WindowStatus, ADoubleClickShowsTheCheckupOnce) {
  Start(WriteSampleWalk());
  int reports = 0;
  QObject::connect(&form_, &app::frmVantrel::ReportChanged, &form_, [&] {
    if (form_.Shown()) ++reports;
  });
  QTest::mouseClick(Line(), Qt::LeftButton);
  QTest::mouseDClick(Line(), Qt::LeftButton);
  QTest::mouseRelease(Line(), Qt::LeftButton);
  EXPECT_EQ(reports, 1);
  QTest::mouseClick(Line(), Qt::LeftButton);
  EXPECT_EQ(reports, 2);
}

TEST_F(WindowStatus, AClickShowsTheCheckup) {
  Start(WriteSampleWalk());
  AwaitCheckup();
  QTest::mouseClick(Line(), Qt::LeftButton);
  const std::string shown = PaneText();
  Entry("mnuCheckup")->trigger();
  EXPECT_EQ(PaneText(), shown);
  EXPECT_FALSE(shown.empty());
}

TEST_F(WindowStatus, EnterAndBlankShowTheCheckup) {
  Start(WriteSampleWalk());
  Box("txtAnalogLabel")->setFocus();
  QTest::keyClick(Box("txtAnalogLabel"), Qt::Key_Tab);
  ASSERT_TRUE(Line()->hasFocus());
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Pane()->ShowText({});
    QTest::keyClick(Line(), key);
    EXPECT_FALSE(PaneText().empty()) << key;
  }
}

TEST_F(WindowStatus, AFileThatCannotBeOpenedLeavesNone) {
  Start(WriteSampleWalk());
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Drop((folder_ / "nowhere.c3d").string());
  EXPECT_EQ(Said(), QStringLiteral("No file open"));
  QTest::qWait(300);
  EXPECT_EQ(Said(), QStringLiteral("No file open"))
      << "the checkup of the file before is not heard";
}

TEST_F(WindowStatus, AFileThatVanishesBeforeItIsCheckedIsAnError) {
  const std::string walk = WriteSampleWalk();
  Start();
  window_.Load(walk);
  tests::TakeAway(walk);  // before the event loop begins the checkup
  AwaitCheckup();
  EXPECT_TRUE(Said().contains(QStringLiteral("found 1 error,"))) << Said().toStdString();
}

TEST_F(WindowStatus, TheNextFileIsSaidAndCheckedInPlaceOfTheOneBefore) {
  Start(WriteWalkWithoutToes());
  Drop(WriteSampleWalk());
  AwaitCheckup();
  EXPECT_TRUE(Said().startsWith(QStringLiteral("walk.c3d: ")));
}

TEST_F(WindowStatus, SaysWhatTheAxesDoToTheCurvesOfGcdFilesUntilTheNextReport) {
  Start(WriteWalkWithoutToes());
  Click("cmdWriteGcdFiles");
  EXPECT_TRUE(Said().startsWith(QStringLiteral("there are no toe markers to tell")));
  EXPECT_TRUE(
      Line()->ShownLines().join(u' ').startsWith(QStringLiteral("there are no toe markers")));
  Click("cmdShowHeaderInfo");
  EXPECT_TRUE(Said().startsWith(QStringLiteral("no toes.c3d: ")));
}

TEST_F(WindowStatus, QuittingWhileTheCheckupRunsEndsTheProgramWithoutIt) {
  Start(WriteSampleWalk());
  QTest::qWait(100);
  Click("cmdExit");
  EXPECT_TRUE(form_.IsUnloaded());
  EXPECT_EQ(form_.ExitStatus(), 0);
}

// The lines at the width of the form for a trial of that name.
QStringList LinesOf(const QString& name, const CheckupCounts& counts) {
  modVantrel::FileState state;
  state.OpenC3dFileSpec = "/visits/" + name.toStdString();
  state.PointFrameCount = 65535;
  state.TimeBetweenFrames = 1 / 119.88F;
  app::frmVantrel form(state);
  form.Status().Say(StatusOf(state, CheckupStage::Done, counts));
  const QStringList lines = form.Status().ShownLines();
  for (const QString& line : lines) {
    EXPECT_LE(form.Status().fontMetrics().horizontalAdvance(line), form.Status().width())
        << line.toStdString();
  }
  EXPECT_LE(2 * form.Status().fontMetrics().capHeight(), form.Status().height());
  return lines;
}

TEST(StatusLines, ALongNameIsShortenedInItsMiddleAndNoFigureIsCut) {
  const QStringList lines =
      LinesOf(QStringLiteral("Gönnewalkerin, Barfuß, Vorher und Nachher 12.c3d"), {12, 34, 5});
  ASSERT_EQ(lines.size(), 2);
  EXPECT_TRUE(lines[0].contains(u'\u2026'));
  EXPECT_TRUE(lines[0].startsWith(u'G'));
  EXPECT_TRUE(lines[0].endsWith(QStringLiteral("  65535 fr., 119.88 Hz")));
  EXPECT_TRUE(lines[1].startsWith(QStringLiteral("L 0, R 0 · 12 err"))) << lines[1].toStdString();
  EXPECT_TRUE(lines[1].contains(QStringLiteral(", 34 warn"))) << lines[1].toStdString();
}

TEST(StatusLines, SayNotesOnlyWhereThereIsNothingElse) {
  EXPECT_EQ(LinesOf(QStringLiteral("a"), {0, 0, 1}).last(), QStringLiteral("L 0, R 0 · 1 note"));
  EXPECT_EQ(LinesOf(QStringLiteral("a"), {0, 1, 1}).last(), QStringLiteral("L 0, R 0 · 1 warning"));
  EXPECT_EQ(LinesOf(QStringLiteral("a"), {}).last(), QStringLiteral("L 0, R 0 · no findings"));
}

// Counts what is under way.
class Counted {
 public:
  explicit Counted(std::atomic<int>& count) : count_(count) { ++count_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { --count_; }

 private:
  std::atomic<int>& count_;
};

// A checkup that goes on until it is told to stop.
struct EndlessCheck {
  std::atomic<int> Running = 0;

  CheckupRun::Check AsCheck() {
    return [this](const std::string& file) {
      const Counted running(Running);
      while (file == "endless") {
        StoppableWork::EndIfStopped();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
      }
      return std::vector<Finding>{{Severity::Error, "x", "", file}};
    };
  }
};

TEST(CheckupBeside, OfAnotherFileEndsTheOneBeforeWhichIsNotHeard) {
  EndlessCheck check;
  CheckupRun run(check.AsCheck());
  QSignalSpy done(&run, &CheckupRun::Done);
  run.Start("endless");
  ASSERT_TRUE(QTest::qWaitFor([&] { return check.Running == 1; }));
  run.Start("short");
  ASSERT_TRUE(QTest::qWaitFor([&] { return check.Running == 0 && done.size() == 1; }));
  QTest::qWait(50);
  EXPECT_EQ(done.size(), 1);
}

TEST(CheckupBeside, EndsWithWhatRunsIt) {
  EndlessCheck check;
  {
    CheckupRun run(check.AsCheck());
    run.Start("endless");
    ASSERT_TRUE(QTest::qWaitFor([&] { return check.Running == 1; }));
  }
  EXPECT_EQ(check.Running, 0);
}

TEST(CheckupBeside, ThatHasNoMemoryIsSaid) {
  CheckupRun run([](const auto&...) -> std::vector<Finding> { throw std::bad_alloc(); });
  QSignalSpy failed(&run, &CheckupRun::Failed);
  run.Start("any");
  EXPECT_TRUE(QTest::qWaitFor([&] { return failed.size() == 1; }));
}

}  // namespace
