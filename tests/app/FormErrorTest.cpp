// SPDX-License-Identifier: GPL-3.0-or-later

// Run-time errors: each ends the program, after what was written is shown and the error named.

#include <QGuiApplication>
#include <QSignalSpy>

#include "sample/TrialBuilder.h"
#include "tests/app/FormFixture.h"

namespace {

using sample::TrialBuilder;

constexpr std::int32_t kTimedEventsCountPosition = 301;

class FormError : public tests::FormTest {
 protected:
  // A trial whose header counts one event more than it has room for.
  static sample::Trial TooManyHeaderEvents() {
    TrialBuilder builder;
    for (int i = 0; i < 18; ++i) builder.AddHeaderEvent("RHS", 0.5F, 1);
    return builder.Build().SetInteger(kTimedEventsCountPosition, 19);
  }

  void ExpectErrorAndEnd(const char* text) {
    ASSERT_EQ(boxes_.Seen().size(), 1U);
    EXPECT_EQ(boxes_.Seen()[0].Title, QStringLiteral("Vantrel"));
    EXPECT_EQ(boxes_.Seen()[0].Text, QString::fromLatin1(text));
    EXPECT_EQ(boxes_.Seen()[0].Icon, QMessageBox::Critical);
    EXPECT_EQ(boxes_.Seen()[0].Buttons, QStringList(QStringLiteral("OK")));
    EXPECT_TRUE(form_.IsUnloaded());
    EXPECT_EQ(form_.ExitStatus(), 1);
    EXPECT_FALSE(form_.isVisible());
    EXPECT_FALSE(state_.C3dFileNumber.IsOpen());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  }
};

TEST_F(FormError, WhatTheReportHadWrittenIsShownBeforeTheMessage) {
  Start(TooManyHeaderEvents());
  const QSignalSpy unloaded(&form_, &app::frmVantrel::Unloaded);
  boxes_.Expect([this](QDialog& box) {
    EXPECT_TRUE(form_.isVisible());
    EXPECT_TRUE(PaneText().starts_with("OpenC3dFileSpec: "));
    EXPECT_TRUE(PaneText().ends_with("  18  0.5000  1  'RHS'\n")) << PaneText();
    box.accept();
  });
  Click("cmdShowHeaderInfo");
  ExpectErrorAndEnd("Run-time error '9':\n\nSubscript out of range");
  ASSERT_EQ(unloaded.size(), 1);
  EXPECT_EQ(unloaded.first().first().toInt(), 1);
}

TEST_F(FormError, TheDesktopCopyHoldsWhatWasWrittenToo) {
  Start(TooManyHeaderEvents());
  Tick(true);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Click("cmdShowHeaderInfo");
  EXPECT_EQ(tests::WithoutCarriageReturns(tests::ReadWholeFile(DesktopFile())), PaneText());
}

TEST_F(FormError, AMissingFrameIsError62) {
  sample::Trial trial = TrialBuilder().Build();
  trial.TruncateTo(static_cast<std::size_t>(trial.FrameDataPosition()) + 20);
  Start(trial);
  Type("txtPointLabel", QStringLiteral("LTOE"));
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Click("cmdShowPointData");
  ExpectErrorAndEnd("Run-time error '62':\n\nInput past end of file");
}

TEST_F(FormError, ADoubleClickInTheTreeEndsInTheSameWay) {
  sample::Trial trial = TrialBuilder().Build();
  trial.TruncateTo(static_cast<std::size_t>(trial.FrameDataPosition()) + 20);
  Start(trial);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  DoubleClickNode({QStringLiteral("POINT"), QStringLiteral("LABELS"), QStringLiteral("LTOE")});
  ExpectErrorAndEnd("Run-time error '62':\n\nInput past end of file");
}

TEST_F(FormError, InTheOpenAtStartTheFormIsNeverShown) {
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Start(TrialBuilder().Build().ClaimFrames(-1, 32767));
  ExpectErrorAndEnd("Run-time error '6':\n\nOverflow");
}

TEST_F(FormError, InALaterOpenEndsTheProgram) {
  Start(WriteSampleWalk());
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Drop(Write(TrialBuilder().Build().TruncateTo(300), "short.c3d"));
  ExpectErrorAndEnd("Run-time error '62':\n\nInput past end of file");
}

TEST_F(FormError, ADesktopCopyThatCannotBeMadeEndsTheProgramAndThePaneStays) {
  Start(WriteSampleWalk());
  Click("cmdShowParameterHeader");
  const std::string before = PaneText();
  std::filesystem::create_directory(DesktopFile());
  Tick(true);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Click("cmdShowAllGroups");
  EXPECT_EQ(PaneText(), before);
  ExpectErrorAndEnd("Run-time error '75':\n\nPath/File access error");
}

TEST_F(FormError, ADesktopThatWasRemovedSinceTheStartIsError76) {
  Start(WriteSampleWalk());
  std::filesystem::remove(folder_ / "Desktop");
  Tick(true);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Click("cmdShowAllGroups");
  ExpectErrorAndEnd("Run-time error '76':\n\nPath not found");
}

}  // namespace
