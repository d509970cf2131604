// SPDX-License-Identifier: GPL-3.0-or-later

// The menu of files: the trials of the folder, those opened last, and opening once more.

#include <fstream>

#include <QApplication>
#include <QDialogButtonBox>
#include <QScreen>
#include <QTest>

#include "sample/TrialBuilder.h"
#include "tests/app/UnusualNames.h"
#include "tests/app/WindowFixture.h"

namespace {

class WindowFile : public tests::WindowTest {
 protected:
  std::string Title() const { return window_.windowTitle().toStdString(); }

  // Lets the window look at the folder.
  void Settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window_.IsLookingAround(); }));
  }
  // Opens the menus by the mouse, waits until the entry can be chosen, and chooses it.
  void ChooseOnceEnabled(QAction* entry) {
    QMenu* menu = MenuOf(entry);
    QMenuBar* bar = window_.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
    ASSERT_TRUE(QTest::qWaitFor([entry] { return entry->isEnabled(); }));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
  }

  QMenu* Recent() { return Entry("mnuRecent")->menu(); }
  QStringList RecentFiles() {
    emit Recent()->aboutToShow();
    QStringList files;
    for (const QAction* entry : Recent()->actions()) {
      if (entry->isSeparator()) break;
      files << entry->text();
    }
    return files;
  }
  // Opens the menus with the mouse and clicks the trial.
  void ChooseRecent(int number) {
    QMenu* menu = MenuOf(Entry("mnuRecent"));
    QMenuBar* bar = window_.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(Entry("mnuRecent")).center());
    ASSERT_TRUE(QTest::qWaitFor([this] { return Recent()->isVisible(); }));
    QAction* entry = Recent()->actions().at(number);
    QTest::mouseClick(Recent(), Qt::LeftButton, {}, Recent()->actionGeometry(entry).center());
  }
};

TEST_F(WindowFile, NextAndPreviousTrialGoThroughTheFolderByNameAndStopAtItsEnds) {
  const std::string first = Write(SampleTrial(), "a 1.c3d");
  const std::string second = Write(SampleTrial(), "b 2.C3D");
  const std::string third = Write(SampleTrial(), tests::OddestName());
  Start(first);
  Settle();
  EXPECT_FALSE(Entry("mnuPreviousTrial")->isEnabled());
  Choose("mnuNextTrial");
  EXPECT_EQ(Title(), second);
  Settle();
  PressKeysOf(Entry("mnuNextTrial"));
  EXPECT_EQ(window_.windowTitle(),
            QString::fromUtf8(third.data(), static_cast<qsizetype>(third.size())));
  EXPECT_GT(Tree()->topLevelItemCount(), 0);
  Settle();
  EXPECT_FALSE(Entry("mnuNextTrial")->isEnabled());
  PressKeysOf(Entry("mnuNextTrial"));
  EXPECT_EQ(form_.OpenFileSpec(), third);
  ChooseByArrows(Entry("mnuPreviousTrial"));
  EXPECT_EQ(Title(), second);
  Settle();
  PressKeysOf(Entry("mnuPreviousTrial"));
  EXPECT_EQ(Title(), first);
}

TEST_F(WindowFile, ATrialThatIsRecordedMeanwhileIsFoundWhenTheMenuOpens) {
  Start(WriteSampleWalk());
  Settle();
  EXPECT_FALSE(Entry("mnuNextTrial")->isEnabled());
  const std::string later = Write(SampleTrial(), "walk2.c3d");
  ChooseOnceEnabled(Entry("mnuNextTrial"));
  EXPECT_EQ(Title(), later);
}

TEST_F(WindowFile, WithoutAnOpenFileThereIsNoNeighbourAndNothingToReload) {
  Start();
  for (const char* name : {"mnuNextTrial", "mnuPreviousTrial", "mnuReload", "mnuRecent"}) {
    EXPECT_FALSE(Entry(name)->isEnabled()) << name;
  }
}

TEST_F(WindowFile, ReloadReadsTheFileAnewAndKeepsTheBoxes) {
  const std::string path = WriteSampleWalk();
  Start(path);
  Type("txtGroup", QStringLiteral("OWN"));
  Type("txtParam", QStringLiteral("X"));
  Type("txtPointLabel", QStringLiteral("LTOE"));
  Type("txtAnalogLabel", QStringLiteral("EMG"));
  Click("cmdShowHeaderInfo");
  sample::TrialBuilder().SetParam("OWN", sample::IntegerParam("X", 1)).Build().WriteTo(path);
  PressKeysOf(Entry("mnuReload"));
  EXPECT_EQ(TextBoxes(), QStringList({QStringLiteral("OWN"), QStringLiteral("X"),
                                      QStringLiteral("LTOE"), QStringLiteral("EMG")}));
  EXPECT_EQ(PaneText(), "");
  EXPECT_NE(Node({QStringLiteral("OWN"), QStringLiteral("X")}), nullptr);
  Choose("mnuReload");
  EXPECT_EQ(Box("txtGroup")->text(), QStringLiteral("OWN"));
  ChooseByArrows(Entry("mnuReload"));
  EXPECT_EQ(Title(), path);
}

TEST_F(WindowFile, ReloadOfAFileThatIsGoneTellsItAndLeavesNothingOpen) {
  const std::string path = WriteSampleWalk();
  Start(path);
  Type("txtGroup", QStringLiteral("POINT"));
  std::filesystem::remove(path);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Choose("mnuReload");
  EXPECT_EQ(boxes_.Seen().back().Text,
            QStringLiteral("File open error while attempting to open C3D file."));
  EXPECT_EQ(Box("txtGroup")->text(), QString());
  EXPECT_FALSE(Entry("mnuReload")->isEnabled());
}

TEST_F(WindowFile, ADamagedTrialDoesNotEndTheWayThroughTheFolder) {
  const std::string first = Write(SampleTrial(), "a.c3d");
  std::ofstream(folder_ / "b.c3d") << "no trial";
  const std::string third = Write(SampleTrial(), "c.c3d");
  Start(first);
  Settle();
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Choose("mnuNextTrial");
  EXPECT_EQ(form_.OpenFileSpec(), "");
  Settle();
  Choose("mnuNextTrial");
  EXPECT_EQ(form_.OpenFileSpec(), third);
  Settle();
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Choose("mnuPreviousTrial");
  Settle();
  Choose("mnuPreviousTrial");
  EXPECT_EQ(form_.OpenFileSpec(), first);
}

TEST_F(WindowFile, RecentTrialsAreListedTheLastOneFirstAndTenAtMost) {
  Start();
  for (int i = 1; i <= 12; ++i) Drop(Write(SampleTrial(), "t" + std::to_string(i) + ".c3d"));
  Drop((folder_ / "t5.c3d").string());
  const QStringList files = RecentFiles();
  ASSERT_EQ(files.size(), 10);
  EXPECT_EQ(files.first().toStdString(), (folder_ / "t5.c3d").string());
  EXPECT_EQ(files.at(1).toStdString(), (folder_ / "t12.c3d").string());
  EXPECT_EQ(files.last().toStdString(), (folder_ / "t3.c3d").string());
}

TEST_F(WindowFile, ARecentTrialIsOpenedByAClickWhateverItsName) {
  const std::string odd = Write(SampleTrial(), "R&D " + tests::OddestName());
  Start(odd);
  Drop(WriteSampleWalk());
  ASSERT_EQ(RecentFiles().size(), 2);
  EXPECT_TRUE(RecentFiles().at(1).contains(QStringLiteral("R&&D")));
  ChooseRecent(1);
  EXPECT_EQ(form_.OpenFileSpec(), odd);
  EXPECT_GT(Tree()->topLevelItemCount(), 0);
}

TEST_F(WindowFile, ARecentTrialBehindALongPathIsOnTheScreenWithItsOwnName) {
  const auto folder = folder_ / std::string(80, 'd') / std::string(80, 'd');
  std::filesystem::create_directories(folder);
  const std::string walk = (folder / "R&D walk.c3d").string();
  SampleTrial().WriteTo(walk);
  Start(walk);
  const QString shown = RecentFiles().first();
  EXPECT_TRUE(shown.endsWith(QStringLiteral("R&&D walk.c3d"))) << shown.toStdString();
  EXPECT_LT(Recent()->sizeHint().width(), window_.screen()->availableGeometry().width());
  EXPECT_TRUE(Recent()->toolTipsVisible());
  EXPECT_TRUE(Recent()->actions().first()->toolTip().contains(QStringLiteral("R&amp;D walk.c3d")));
  EXPECT_TRUE(Recent()->actions().first()->toolTip().contains(QString(80, u'd')));
  ChooseRecent(0);
  EXPECT_EQ(form_.OpenFileSpec(), walk);
}

TEST_F(WindowFile, AFileThatCouldNotBeOpenedIsNotRecent) {
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Start((folder_ / "nowhere.c3d").string());
  EXPECT_FALSE(Entry("mnuRecent")->isEnabled());
}

TEST_F(WindowFile, ClearForgetsTheRecentTrials) {
  Start(WriteSampleWalk());
  ASSERT_EQ(RecentFiles().size(), 1);
  ChooseRecent(2);  // behind the trial and a line
  EXPECT_TRUE(RecentFiles().isEmpty());
  EXPECT_FALSE(Entry("mnuRecent")->isEnabled());
}

TEST_F(WindowFile, CancelOfTheOpenDialogSaysThatItEndsTheProgram) {
  Start();
  boxes_.Expect([](QDialog& dialog) {
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    ASSERT_NE(buttons, nullptr);
    QPushButton* cancel = buttons->button(QDialogButtonBox::Cancel);
    EXPECT_EQ(cancel->toolTip(), QStringLiteral("Ends the program"));
    QTest::mouseClick(cancel, Qt::LeftButton);
  });
  PressKeysOf(Entry("mnuOpen"));
  EXPECT_TRUE(form_.IsUnloaded());
}

}  // namespace
