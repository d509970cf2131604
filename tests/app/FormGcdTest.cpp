// SPDX-License-Identifier: GPL-3.0-or-later

// The GCD command of the form and its questions.

#include <fstream>

#include <QApplication>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

#include "sample/TrialBuilder.h"
#include "tests/app/FormFixture.h"

namespace {

using tests::ReadWholeFile;

constexpr const char* kOld = "an old file";

// The sample walk has three strides of each foot, left and right in turn.
class FormGcd : public tests::FormTest {
 protected:
  void StartWithSample() { Start(WriteSampleWalk()); }

  std::string Gcd(const char* stride) const {
    return (folder_ / (std::string("walk-") + stride + ".gcd")).string();
  }

  void WriteOld(const char* stride) { std::ofstream(Gcd(stride)) << kOld; }

  bool IsNew(const char* stride) const {
    return ReadWholeFile(Gcd(stride)).starts_with("#!DST-0.1 GCD Quarrin PhD 1.00\r\n");
  }

  std::string Outputs(std::initializer_list<const char*> strides) const {
    std::string lines;
    for (const char* stride : strides) lines += "Output: " + Gcd(stride) + "\n";
    return lines;
  }
};

TEST_F(FormGcd, WritesAFileForEachStrideWithoutAskingWhereNoneExists) {
  StartWithSample();
  Click("cmdWriteGcdFiles");
  EXPECT_EQ(PaneText(), Outputs({"L1", "R1", "L2", "R2", "L3", "R3"}) + "Done.\n");
  for (const char* stride : {"L1", "L2", "L3", "R1", "R2", "R3"}) EXPECT_TRUE(IsNew(stride));
}

TEST_F(FormGcd, ItsLinesDoNotReachTheDesktopCopy) {
  StartWithSample();
  Tick(true);
  Click("cmdShowParameterHeader");
  const std::string copy = ReadWholeFile(DesktopFile());
  Click("cmdWriteGcdFiles");
  EXPECT_EQ(ReadWholeFile(DesktopFile()), copy);
}

TEST_F(FormGcd, WithoutAnEarlierReportNoDesktopCopyIsMade) {
  StartWithSample();
  Tick(true);
  Click("cmdWriteGcdFiles");
  EXPECT_FALSE(std::filesystem::exists(DesktopFile()));
}

TEST_F(FormGcd, AsksBeforeOverwriting) {
  StartWithSample();
  WriteOld("L2");
  boxes_.Expect([this](QDialog& box) {
    EXPECT_EQ(PaneText(), Outputs({"L1", "R1"})) << "what is done is shown behind the question";
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    QTest::keyClick(box.focusWidget(), Qt::Key_Return);
  });
  Click("cmdWriteGcdFiles");
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  const tests::SeenBox& box = boxes_.Seen()[0];
  EXPECT_EQ(box.Title, QStringLiteral("Writing GCD file"));
  EXPECT_EQ(box.Text.toStdString(),
            "The GCD file named '" + Gcd("L2") +
                "' already exists.  Other GCD files for other cycles or the other limb may also "
                "exist.  Do you wish to overwrite this file or all these files?");
  EXPECT_EQ(box.Icon, QMessageBox::Question);
  EXPECT_EQ(box.Buttons, QStringList({QStringLiteral("Yes"), QStringLiteral("Yes to All"),
                                      QStringLiteral("Cancel")}));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FormGcd, YesOverwritesThatFileAndAsksAgainForTheNext) {
  StartWithSample();
  WriteOld("L1");
  WriteOld("R2");
  boxes_.ExpectAndClick(QStringLiteral("Yes"));
  boxes_.ExpectAndClick(QStringLiteral("Yes"));
  Click("cmdWriteGcdFiles");
  EXPECT_EQ(boxes_.Seen().size(), 2U);
  EXPECT_TRUE(IsNew("L1"));
  EXPECT_TRUE(IsNew("R2"));
  EXPECT_TRUE(PaneText().ends_with("Done.\n"));
}

TEST_F(FormGcd, YesToAllOverwritesTheRestWithoutAsking) {
  StartWithSample();
  for (const char* stride : {"L1", "L2", "R3"}) WriteOld(stride);
  boxes_.ExpectAndClick(QStringLiteral("Yes to All"));
  Click("cmdWriteGcdFiles");
  EXPECT_EQ(boxes_.Seen().size(), 1U);
  for (const char* stride : {"L1", "L2", "R3"}) EXPECT_TRUE(IsNew(stride));
}

TEST_F(FormGcd, YesToAllHoldsForOneCommandOnly) {
  StartWithSample();
  WriteOld("L1");
  boxes_.ExpectAndClick(QStringLiteral("Yes to All"));
  Click("cmdWriteGcdFiles");
  boxes_.ExpectAndClick(QStringLiteral("Yes to All"));
  Click("cmdWriteGcdFiles");
  EXPECT_EQ(boxes_.Seen().size(), 2U);
}

TEST_F(FormGcd, AKeyThatIsStillHeldDownAnswersNothing) {
  StartWithSample();
  WriteOld("L1");
  boxes_.Expect([this](QDialog& box) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape}) {
      for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent held(type, key, Qt::NoModifier, QString(), type == QEvent::KeyPress);
        QApplication::sendEvent(box.focusWidget(), &held);
      }
      EXPECT_TRUE(box.isVisible()) << key;
    }
    EXPECT_FALSE(IsNew("L1"));
    QTest::keyClick(&box, Qt::Key_Return);
  });
  Click("cmdWriteGcdFiles");
  EXPECT_TRUE(IsNew("L1"));
}

TEST_F(FormGcd, CancelKeepsTheFilesSoFarSaysSoAndEndsTheProgram) {
  StartWithSample();
  WriteOld("L3");
  const QSignalSpy unloaded(&form_, &app::frmVantrel::Unloaded);
  boxes_.ExpectAndClick(QStringLiteral("Cancel"));
  Click("cmdWriteGcdFiles");
  EXPECT_EQ(PaneText(), Outputs({"L1", "R1", "L2", "R2"}) + "Cancelled.\n");
  EXPECT_TRUE(IsNew("L2"));
  EXPECT_EQ(ReadWholeFile(Gcd("L3")), kOld);
  EXPECT_FALSE(std::filesystem::exists(Gcd("R3")));
  ASSERT_EQ(unloaded.size(), 1);
  EXPECT_EQ(unloaded.first().first().toInt(), 0);
}

TEST_F(FormGcd, EscapeCountsAsCancel) {
  StartWithSample();
  WriteOld("L1");
  boxes_.ExpectAndPress(Qt::Key_Escape);
  Click("cmdWriteGcdFiles");
  EXPECT_EQ(PaneText(), "Cancelled.\n");
  EXPECT_TRUE(form_.IsUnloaded());
}

TEST_F(FormGcd, TheCloseBoxCountsAsCancel) {
  StartWithSample();
  WriteOld("L1");
  boxes_.Expect([](QDialog& box) { box.close(); });
  Click("cmdWriteGcdFiles");
  EXPECT_EQ(PaneText(), "Cancelled.\n");
  EXPECT_TRUE(form_.IsUnloaded());
}

TEST_F(FormGcd, WithoutStridesAMessageComesFirstAndThenStandsInThePane) {
  Start(sample::TrialBuilder().Build());
  Click("cmdShowParameterHeader");
  const std::string before = PaneText();
  boxes_.Expect([&](QDialog& box) {
    EXPECT_EQ(PaneText(), before);
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  Click("cmdWriteGcdFiles");
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_EQ(boxes_.Seen()[0].Title, QStringLiteral("Vantrel"));
  EXPECT_EQ(boxes_.Seen()[0].Text, QStringLiteral("No valid stride events were found."));
  EXPECT_EQ(boxes_.Seen()[0].Buttons, QStringList(QStringLiteral("OK")));
  EXPECT_EQ(PaneText(), "No valid stride events were found.");
  EXPECT_FALSE(form_.IsUnloaded());
}

TEST_F(FormGcd, AFileThatCannotBeWrittenEndsTheProgramWithItsError) {
  StartWithSample();
  std::filesystem::create_directory(Gcd("L2"));
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Click("cmdWriteGcdFiles");
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_EQ(boxes_.Seen()[0].Icon, QMessageBox::Critical);
  EXPECT_EQ(boxes_.Seen()[0].Text.toStdString(),
            "Run-time error '75':\n\nPath/File access error\n" + Gcd("L2") + " is a folder");
  EXPECT_EQ(PaneText(), Outputs({"L1", "R1"}));
  EXPECT_EQ(form_.ExitStatus(), 1);
}

}  // namespace
