// SPDX-License-Identifier: GPL-3.0-or-later

// The curves window with the trials of a visit: what is added, left out, followed and read.

#include <algorithm>
#include <fstream>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QTabBar>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolButton>

#include "sample/SampleWalk.h"
#include "tests/app/CurvesFixture.h"
#include "tests/app/UnusualNames.h"

namespace {

using Curves = tests::CurvesTest;
using modVantrel::GaitSide;
using pages::PageKind;
using tests::KneeAt;

constexpr double kNear = 1e-4;
constexpr std::size_t kMiddle = 25;  // the instant at 50 percent

TEST_F(Curves, ThreeTrialsThatAreDroppedStandInTheListAndTheirMeansOnThePage) {
  Start();
  DropAll(ThreeTrials());
  ASSERT_EQ(List()->topLevelItemCount(), 3);
  EXPECT_EQ(Trial(0)->text(0), QStringLiteral("one.c3d"));
  EXPECT_EQ(Trial(2)->text(0), QStringLiteral("three.c3d"));
  EXPECT_EQ(Trial(0)->childCount(), 5);
  EXPECT_EQ(View().Style().Curves, plot::Shown::Means);
  const auto& means = CurvesOf("Knee flexion").Means;
  ASSERT_EQ(means.size(), 2U);
  EXPECT_EQ(means[0].Count, 9);
  // At half of the second of three strides of the second of three trials.
  EXPECT_NEAR(means[0].Mean[kMiddle].value_or(0), KneeAt(10, 2.0), kNear);
  EXPECT_EQ(means[1].Count, 6);
  EXPECT_NEAR(means[1].Mean[kMiddle].value_or(0), KneeAt(10, 2.0), kNear);
}

TEST_F(Curves, OneTrialShowsItsStrides) {
  Start();
  DropAll({ThreeTrials()[0]});
  EXPECT_EQ(View().Style().Curves, plot::Shown::Strides);
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
  EXPECT_TRUE(Entry("mnuStrides")->isChecked());
}

TEST_F(Curves, AStrideWhoseCheckMarkGoesIsLeftOutOfEveryPageAndComesBackWithIt) {
  Start();
  DropAll({ThreeTrials()[0]});
  ClickCheckMark(Stride(0, "Left stride 3"));
  const auto& knee = CurvesOf("Knee flexion");
  EXPECT_EQ(knee.Curves.size(), 4U);
  EXPECT_EQ(knee.Means.at(0).Count, 2);
  EXPECT_NEAR(knee.Means.at(0).Mean[kMiddle].value_or(0), KneeAt(0, 1.5), kNear);
  EXPECT_EQ(View().Set().LeftStrides, 2);
  window_->ShowPage(PageKind::Variability);
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 4U);
  window_->ShowPage(PageKind::Measures);
  const auto& measure = std::get<pages::BarPanel>(View().Page().Panels.at(0));
  EXPECT_EQ(measure.Groups.at(0).Bars.at(0).Side, GaitSide::Left);
  EXPECT_LE(measure.Groups.at(0).Bars.at(0).Count, 2);
  window_->ShowPage(PageKind::Kinematics);
  ClickCheckMark(Stride(0, "Left stride 3"));
  EXPECT_NEAR(CurvesOf("Knee flexion").Means.at(0).Mean[kMiddle].value_or(0), KneeAt(0, 2.0),
              kNear);
}

TEST_F(Curves, ATrialWhoseCheckMarkGoesLeavesThePages) {
  Start();
  DropAll(ThreeTrials());
  ClickCheckMark(Trial(2));
  EXPECT_EQ(View().Set().Files.size(), 2U);
  EXPECT_NEAR(CurvesOf("Knee flexion").Means.at(0).Mean[kMiddle].value_or(0), KneeAt(5, 2.0),
              kNear);
  EXPECT_EQ(List()->topLevelItemCount(), 3);
}

TEST_F(Curves, DeleteTakesATrialOutOfTheVisit) {
  Start();
  DropAll(ThreeTrials());
  List()->setCurrentItem(Trial(1));
  List()->setFocus();
  QTest::keyClick(List(), Qt::Key_Delete);
  ASSERT_EQ(List()->topLevelItemCount(), 2);
  EXPECT_EQ(Trial(1)->text(0), QStringLiteral("three.c3d"));
  EXPECT_EQ(Trial(1)->childCount(), 5);
  EXPECT_EQ(View().Set().Files.size(), 2U);
}

TEST_F(Curves, TheSameFileCountsOnceWhateverWayItIsWritten) {
  Start();
  const std::string path = ThreeTrials()[0];
  std::filesystem::create_hard_link(path, folder_ / "twin.c3d");
  DropAll({path, path, (folder_ / "twin.c3d").string(), (folder_ / "./one.c3d").string()});
  EXPECT_EQ(List()->topLevelItemCount(), 1);
}

TEST_F(Curves, FollowsTheFormAndKeepsWhatWasAdded) {
  const auto trials = ThreeTrials();
  window_->Follow(trials[0]);
  Start();
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
  DropAll({trials[1]});
  window_->Follow(trials[2]);
  WaitUntilRead();
  ASSERT_EQ(List()->topLevelItemCount(), 2);
  EXPECT_EQ(Trial(0)->text(0), QStringLiteral("three.c3d"));
  EXPECT_EQ(Trial(1)->text(0), QStringLiteral("two.c3d"));
  EXPECT_EQ(View().Set().Files.at(0).Name, trials[2]);
  window_->Follow(trials[1]);
  WaitUntilRead();
  ASSERT_EQ(List()->topLevelItemCount(), 1);
  window_->Follow(trials[0]);
  WaitUntilRead();
  ASSERT_EQ(List()->topLevelItemCount(), 2) << "what was added stays when the form leaves it";
  EXPECT_EQ(Trial(0)->text(0), QStringLiteral("one.c3d"));
  EXPECT_EQ(Trial(0)->childCount(), 5);
}

TEST_F(Curves, AFileThatCannotBeReadIsNamedWithItsReasonAndTheOthersStay) {
  Start();
  auto trials = ThreeTrials();
  std::ofstream(folder_ / "damaged.c3d") << "no trial";
  std::filesystem::remove(trials[1]);
  DropAll({trials[0], trials[1], (folder_ / "damaged.c3d").string(), trials[2]});
  ASSERT_EQ(List()->topLevelItemCount(), 4);
  EXPECT_TRUE(Trial(0)->text(1).isEmpty() || Trial(0)->text(1) == QStringLiteral("See checkup"));
  EXPECT_FALSE(Trial(1)->text(1).isEmpty());
  EXPECT_FALSE(Trial(2)->text(1).isEmpty());
  EXPECT_NE(Trial(1)->text(1), Trial(2)->text(1));
  EXPECT_FALSE(Trial(1)->icon(1).isNull());
  EXPECT_TRUE(Trial(1)->data(0, Qt::AccessibleTextRole).toString().contains(Trial(1)->text(1)));
  EXPECT_EQ(View().Set().Files.size(), 2U);
}

TEST_F(Curves, AFileThatVanishesIsNamedWhenItIsReadAgainAndReadWhenItIsBack) {
  Start();
  const auto trials = ThreeTrials();
  DropAll({trials[0]});
  const auto away = folder_ / "away.c3d";
  std::filesystem::rename(trials[0], away);
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U) << "what was read stays";
  Entry("mnuReadAgain")->trigger();
  WaitUntilRead();
  EXPECT_FALSE(Trial(0)->text(1).isEmpty());
  EXPECT_FALSE(View().HasPage());
  std::filesystem::rename(away, trials[0]);
  Entry("mnuReadAgain")->trigger();
  WaitUntilRead();
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
}

TEST_F(Curves, WhatACheckupWarnsOfStandsInTheTooltipOfTheTrial) {
  Start();
  DropAll({ThreeTrials()[0]});  // has no toe markers
  EXPECT_EQ(Trial(0)->text(1), QStringLiteral("See checkup"));
  EXPECT_FALSE(Trial(0)->icon(1).isNull());
  EXPECT_TRUE(Trial(0)->toolTip(1).contains(QStringLiteral("TOE")))
      << Trial(0)->toolTip(1).toStdString();
}

TEST_F(Curves, TheNameOfAFileIsNoMarkupInATooltip) {
  Start();
  DropAll({Write(tests::RisingKnees(0), tests::NameLikeMarkup() + ".c3d")});
  const QString name = QString::fromStdString(tests::NameLikeMarkup());
  window_->SavePages((folder_ / (tests::NameLikeMarkup() + ".pdf")).string(),
                     {pages::PageKind::Kinematics});
  WaitUntilRead();
  auto* said = Part<QLabel>("lblPointed");
  ASSERT_TRUE(said->text().contains(name + QStringLiteral(".pdf")));
  EXPECT_EQ(QTextDocumentFragment::fromHtml(said->toolTip()).toPlainText(), said->text());
  EXPECT_TRUE(QTextDocumentFragment::fromHtml(Trial(0)->toolTip(0))
                  .toPlainText()
                  .endsWith(name + QStringLiteral(".c3d")));
}

// Where the form is paged through a folder, nobody waits for the trials that it has passed.
TEST_F(Curves, OfTrialsThatTheFormPassesTheLastIsReadAlone) {
  Start();
  for (const std::string& trial : ThreeTrials()) window_->Follow(trial);
  std::size_t started = 0;
  for (const auto* work : window_->findChildren<app::Background*>()) started += work->Started();
  EXPECT_EQ(started, 1U);
  WaitUntilRead();
  ASSERT_EQ(List()->topLevelItemCount(), 1);
  EXPECT_EQ(Trial(0)->text(0), QStringLiteral("three.c3d"));
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
}

TEST_F(Curves, TheTrialOfTheFormIsReadBeforeThoseThatWaitAlready) {
  Start();
  const auto trials = ThreeTrials();
  std::vector<std::string> order;
  for (const auto* work : window_->findChildren<app::Background*>()) {
    QObject::connect(work, &app::Background::Changed, window_.get(), [&] {
      for (const auto& trial : window_->TrialsOfVisit().Trials()) {
        if (trial.Values && std::ranges::find(order, trial.Path) == order.end()) {
          order.push_back(trial.Path);
        }
      }
    });
  }
  window_->AddTrials({trials[0], trials[1]});
  window_->Follow(trials[2]);
  WaitUntilRead();
  EXPECT_EQ(order, (std::vector<std::string>{trials[2], trials[0], trials[1]}));
}

TEST_F(Curves, PagesTurnByKeysAndStopAtTheEnds) {
  Start();
  DropAll({ThreeTrials()[0]});
  auto* tabs = Part<QTabBar>("pageTabs");
  QTest::keyClick(&View(), Qt::Key_PageUp);
  EXPECT_EQ(tabs->currentIndex(), 0);
  for (std::size_t i = 1; i < pages::kPages.size(); ++i) {
    QTest::keyClick(&View(), Qt::Key_PageDown);
    WaitUntilRead();
    ASSERT_EQ(tabs->currentIndex(), static_cast<int>(i));
    ASSERT_TRUE(View().HasPage());
    EXPECT_EQ(View().Page().Kind, pages::kPages.at(i).Kind);
  }
  QTest::keyClick(&View(), Qt::Key_PageDown);
  EXPECT_EQ(tabs->currentIndex(), tabs->count() - 1);
}

TEST_F(Curves, ALabelOverTimeIsChosenFromTheTrialsLabelsAndShownTrialByTrial) {
  Start();
  const auto trials = ThreeTrials();
  DropAll({trials[0], trials[1]});
  window_->ShowPage(PageKind::Label);
  WaitUntilRead();
  auto* labels = Part<QComboBox>("cboLabel");
  ASSERT_EQ(labels->count(), 2);
  labels->setFocus();
  labels->setCurrentText(QStringLiteral("RKneeAngles"));
  QTest::keyClick(labels, Qt::Key_Return);
  WaitUntilRead();
  ASSERT_EQ(View().Set().Pages.size(), 2U);
  ASSERT_TRUE(View().Page().OverTime);
  EXPECT_EQ(View().Page().OverTime->Label, "RKneeAngles");
  EXPECT_EQ(View().Page().OverTime->File, 0U);
  QTest::keyClick(&View(), Qt::Key_PageDown);
  EXPECT_EQ(View().Page().OverTime->File, 1U);
  const auto& x = std::get<pages::TracePanel>(View().Page().Panels.at(0));
  EXPECT_NEAR(double{x.Values.at(100).value_or(0)}, KneeAt(10, 1), kNear);
}

TEST_F(Curves, RemembersItsSizeAndWhichCurvesWereChosen) {
  Start();
  DropAll({ThreeTrials()[0]});
  window_->resize(700, 500);
  QTest::qWait(50);
  const QSize size = window_->size();
  QTest::keyClick(&View(), Qt::Key_M, Qt::ControlModifier);
  EXPECT_EQ(View().Style().Curves, plot::Shown::Means);
  window_->close();
  window_ = std::make_unique<app::CurvesWindow>();
  Start();
  DropAll({(folder_ / "one.c3d").string()});
  EXPECT_EQ(View().Style().Curves, plot::Shown::Means) << "one file shows strides at first";
  EXPECT_EQ(window_->size(), size);
}

TEST_F(Curves, LiesWithinTheScreenAtFirst) {
  Start();
  QTest::qWait(100);
  const QRect room = window_->screen()->availableGeometry();
  EXPECT_TRUE(room.contains(window_->frameGeometry()))
      << window_->width() << ' ' << window_->height();
}

TEST_F(Curves, EveryPartHasANameAndIsReachedByTab) {
  Start();
  DropAll({ThreeTrials()[0]});
  for (const char* name : {"visitList", "pageTabs", "pageView", "cboLabel", "cmdCancel"}) {
    auto* part = Part<QWidget>(name);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(part);
    ASSERT_NE(spoken, nullptr);
    EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << name;
  }
  std::set<QString> reached;
  for (int i = 0; i < 12; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    reached.insert(QApplication::focusWidget()->objectName());
  }
  for (const char* name : {"visitList", "pageTabs", "pageView"}) {
    EXPECT_TRUE(reached.contains(QString::fromLatin1(name))) << name;
  }
}

}  // namespace
