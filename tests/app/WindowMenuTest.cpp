// SPDX-License-Identifier: GPL-3.0-or-later

// The menus above the form: what they hold, and that each entry is worked by mouse and keys.

#include <map>

#include <QSignalSpy>
#include <QTest>

#include "app/FindBar.h"
#include "app/FormRows.h"
#include "tests/app/WindowFixture.h"

namespace {

class WindowMenu : public tests::WindowTest {};

// What the menus show, with the shortcuts behind the captions.
QStringList EntriesOf(const QMenu& menu) {
  QStringList entries;
  for (const QAction* entry : menu.actions()) {
    entries << (entry->isSeparator() ? QStringLiteral("-") : entry->text());
  }
  return entries;
}

TEST_F(WindowMenu, ItsTitleIsThatOfTheForm) {
  Start();
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("Vantrel"));
  const std::string walk = WriteSampleWalk();
  Drop(walk);
  EXPECT_EQ(window_.windowTitle().toStdString(), walk);
}

TEST_F(WindowMenu, ClosingTheWindowUnloadsTheFormAndClosesTheFile) {
  Start(WriteSampleWalk());
  const QSignalSpy unloaded(&form_, &app::frmVantrel::Unloaded);
  window_.close();
  ASSERT_EQ(unloaded.size(), 1);
  EXPECT_EQ(unloaded.first().first().toInt(), 0);
  EXPECT_FALSE(window_.isVisible());
  EXPECT_FALSE(state_.C3dFileNumber.IsOpen());
}

TEST_F(WindowMenu, TheExitButtonClosesTheWindow) {
  Start();
  const QSignalSpy unloaded(&form_, &app::frmVantrel::Unloaded);
  Click("cmdExit");
  EXPECT_EQ(unloaded.size(), 1);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(WindowMenu, AFileDroppedOnTheMenusIsOpened) {
  Start();
  DropOn(window_, WriteSampleWalk());
  EXPECT_GT(Tree()->topLevelItemCount(), 0);
  Drop(Write(SampleTrial(), "other.c3d"));
  EXPECT_TRUE(window_.windowTitle().endsWith(QDir::separator() + QStringLiteral("other.c3d")));
}

TEST_F(WindowMenu, StandInTheirOrder) {
  QStringList menus;
  for (const QAction* top : window_.menuBar()->actions()) menus << top->text();
  EXPECT_EQ(menus.mid(0, 4), QStringList({QStringLiteral("&File"), QStringLiteral("&Edit"),
                                          QStringLiteral("&Reports"), QStringLiteral("&Curves")}));
}

TEST_F(WindowMenu, NoTwoEntriesShareTheirKeys) {
  std::map<QKeySequence, QString> taken;
  for (QAction* action : window_.findChildren<QAction*>()) {
    for (const QKeySequence& keys : action->shortcuts()) {
      const auto [other, isFree] = taken.emplace(keys, action->objectName());
      EXPECT_TRUE(isFree) << keys.toString().toStdString() << ": " << other->second.toStdString()
                          << ", " << action->objectName().toStdString();
    }
  }
  EXPECT_GE(taken.size(), 20U);
}

TEST_F(WindowMenu, NoKeysOfAnEntryEditATextBox) {
  for (const QAction* action : window_.findChildren<QAction*>()) {
    for (const QKeySequence& keys : action->shortcuts()) {
      if (action->objectName() == QStringLiteral("mnuCopy")) continue;  // which copies from it
      for (int key = QKeySequence::Copy; key <= QKeySequence::InsertLineSeparator; ++key) {
        const auto standard = static_cast<QKeySequence::StandardKey>(key);
        const bool edits =
            standard <= QKeySequence::Redo || standard >= QKeySequence::MoveToNextChar;
        EXPECT_FALSE(edits && QKeySequence::keyBindings(standard).contains(keys))
            << action->objectName().toStdString() << ' ' << keys.toString().toStdString();
      }
    }
  }
}

TEST_F(WindowMenu, TheReportsAreTheButtonsOfTheFormUnderTheirCaptions) {
  QStringList captions;
  for (const auto* button : form_.findChildren<app::CaptionButton*>()) {
    const QString name = button->objectName();
    if (name != QStringLiteral("cmdOpen") && name != QStringLiteral("cmdExit")) {
      captions << button->text();
    }
  }
  QMenu* reports = MenuOf(Entry("cmdShowHeaderInfo"));
  EXPECT_EQ(reports->title(), QStringLiteral("&Reports"));
  EXPECT_EQ(EntriesOf(*reports).mid(0, captions.size()), captions);
  EXPECT_EQ(captions.size(), 15);
}

// The entry does to the pane what the button does.
TEST_F(WindowMenu, EveryReportRunsByMouseByArrowsAndByItsKeys) {
  Start(WriteSampleWalk());
  for (const auto* button : form_.findChildren<app::CaptionButton*>()) {
    const QByteArray name = button->objectName().toLatin1();
    if (!name.startsWith("cmdShow")) continue;
    Type("txtGroup", QStringLiteral("POINT"));
    Type("txtParam", QStringLiteral("LABELS"));
    Type("txtPointLabel", QStringLiteral("LTOE"));
    Type("txtAnalogLabel", QStringLiteral("Force.Fz1"));
    Click(name.constData());
    const std::string expected = PaneText();
    ASSERT_FALSE(expected.empty());
    QAction* entry = Entry(name.constData());
    Pane()->ShowText({});
    Choose(entry);
    EXPECT_EQ(PaneText(), expected) << name.constData();
    Pane()->ShowText({});
    ChooseByArrows(entry);
    EXPECT_EQ(PaneText(), expected) << name.constData();
    for (QWidget* focus : {static_cast<QWidget*>(Box("txtGroup")), static_cast<QWidget*>(Pane())}) {
      focus->setFocus();
      Pane()->ShowText({});
      PressKeysOf(entry);
      EXPECT_EQ(PaneText(), expected) << name.constData();
    }
  }
}

TEST_F(WindowMenu, AReportWithoutAnOpenFileIsRefusedAsByItsButton) {
  Start();
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Choose("cmdShowHeaderInfo");
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_EQ(boxes_.Seen()[0].Text,
            QStringLiteral("A C3D file is not open.  You must open one first."));
}

TEST_F(WindowMenu, OpenShowsTheDialogAndItsCancelEndsTheProgram) {
  Start(WriteSampleWalk());
  boxes_.ExpectAndPress(Qt::Key_Escape);
  Choose("mnuOpen");
  EXPECT_TRUE(form_.IsUnloaded());
  EXPECT_EQ(form_.ExitStatus(), 0);
}

TEST_F(WindowMenu, QuitEndsTheProgram) {
  Start(WriteSampleWalk());
  Choose("mnuQuit");
  EXPECT_TRUE(form_.IsUnloaded());
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(WindowMenu, FindOpensTheBarAndGoesFromPlaceToPlace) {
  Start();
  Pane()->Append("Left foot\nleft hand\n");
  Choose("mnuFind");
  EXPECT_TRUE(Control<app::FindBar>("findBar")->isVisible());
  ASSERT_TRUE(Box("txtFind")->hasFocus());
  QTest::keyClicks(Box("txtFind"), QStringLiteral("left"));
  const auto start = [this] { return Pane()->SendScintilla(QsciScintilla::SCI_GETSELECTIONSTART); };
  Choose("mnuFindNext");
  EXPECT_EQ(start(), 0);
  ChooseByArrows(Entry("mnuFindNext"));
  EXPECT_EQ(start(), 10);
  Choose("mnuFindPrevious");
  EXPECT_EQ(start(), 0);
}

TEST_F(WindowMenu, ZoomWorksByMouseArrowsAndKeys) {
  Start();
  const auto zoom = [this] { return Pane()->SendScintilla(QsciScintilla::SCI_GETZOOM); };
  Choose("mnuZoomIn");
  EXPECT_EQ(zoom(), 1);
  ChooseByArrows(Entry("mnuZoomIn"));
  PressKeysOf(Entry("mnuZoomIn"));
  EXPECT_EQ(zoom(), 3);
  Choose("mnuZoomOut");
  EXPECT_EQ(zoom(), 2);
  Choose("mnuZoomReset");
  EXPECT_EQ(zoom(), 0);
}

TEST_F(WindowMenu, ACommandOfAMenuWhileAnotherRunsIsDropped) {
  Start(WriteSampleWalk());
  Click("cmdShowHeaderInfo");
  const std::string expected = PaneText();
  form_.RunCommand([this] { Entry("cmdShowAllGroups")->trigger(); });
  EXPECT_EQ(PaneText(), expected);
  Entry("cmdShowAllGroups")->trigger();
  EXPECT_NE(PaneText(), expected);
}

TEST_F(WindowMenu, CurvesAreAskedForWhereAFileIsOpen) {
  qRegisterMetaType<pages::PageKind>();
  Start();
  EXPECT_FALSE(Entry("mnuCurves_kinematics")->isEnabled());
  Drop(WriteSampleWalk());
  const QSignalSpy asked(&window_, &app::MainWindow::CurvesAsked);
  int expected = 0;
  for (const pages::PageInfo& page : pages::kPages) {
    const std::string name = "mnuCurves_" + std::string(page.Name);
    Choose(name.c_str());
    ASSERT_EQ(asked.size(), ++expected);
    EXPECT_EQ(asked.last().first().value<pages::PageKind>(), page.Kind);
  }
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Drop((folder_ / "nowhere.c3d").string());
  EXPECT_FALSE(Entry("mnuCurves_kinematics")->isEnabled());
}

}  // namespace
