// SPDX-License-Identifier: GPL-3.0-or-later

// Readings of the curves window that are ended, closed over, or tried once more.

#include <filesystem>
#include <string>
#include <vector>

#include <QAction>
#include <QComboBox>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QTest>
#include <QToolButton>

#include "sample/SampleWalk.h"
#include "tests/app/CurvesFixture.h"

namespace {

using Curves = tests::CurvesTest;
using pages::PageKind;

// Big enough to be still under way when somebody cancels.
sample::TrialBuilder LongTrial() {
  sample::TrialBuilder walk = tests::RisingKnees(0);
  walk.Frames(1, 20000);
  for (const char* side : {"L", "R"}) {
    for (const char* label :
         {"PelvisAngles", "HipAngles", "AnkleAngles", "FootProgressAngles", "HipMoment",
          "KneeMoment", "AnkleMoment", "HipPower", "KneePower", "AnklePower"}) {
      walk.AddPoint(std::string(side) + label, tests::Origin);
    }
  }
  for (int i = 0; i < 20; ++i) walk.AddPoint("P" + std::to_string(i), tests::Origin);
  return walk;
}

TEST_F(Curves, CancelEndsALongReadingAtOnceAndReadAgainTakesItUp) {
  Start();
  std::vector<std::string> paths = {Write(LongTrial(), "long0.c3d")};
  for (int i = 1; i < 10; ++i) {
    const auto copy = folder_ / ("long" + std::to_string(i) + ".c3d");
    std::filesystem::copy_file(paths[0], copy);
    paths.push_back(copy.string());
  }
  window_->AddTrials(paths);
  auto* cancel = Part<QToolButton>("cmdCancel");
  ASSERT_TRUE(QTest::qWaitFor([&] { return cancel->isVisible(); }, 10000));
  EXPECT_TRUE(Part<QProgressBar>("progress")->isVisible());
  ASSERT_TRUE(window_->IsBusy());
  QElapsedTimer timer;
  timer.start();
  QTest::mouseClick(cancel, Qt::LeftButton);
  EXPECT_LT(timer.elapsed(), 500);
  EXPECT_FALSE(window_->IsBusy());
  EXPECT_FALSE(cancel->isVisible());
  EXPECT_EQ(Trial(9)->text(1), QStringLiteral("Reading was cancelled."));
  for (int i = 9; i > 0; --i) {
    List()->setCurrentItem(Trial(i));
    QTest::keyClick(List(), Qt::Key_Delete);
  }
  Entry("mnuReadAgain")->trigger();
  WaitUntilRead();
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
}

TEST_F(Curves, ClosedInTheMiddleOfAReadingItEndsAndReadsTheRestWhenItIsOpenedAgain) {
  Start();
  const std::string path = Write(LongTrial(), "long.c3d");
  window_->AddTrials({path});
  ASSERT_TRUE(window_->IsBusy());
  window_->close();
  EXPECT_FALSE(window_->IsBusy());
  Start();
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
}

TEST_F(Curves, ALabelWhoseReadingEndedWithTheWindowIsReadWhenItIsOpenedAgain) {
  Start();
  DropAll({Write(LongTrial(), "long.c3d")});
  window_->ShowPage(PageKind::Label);
  WaitUntilRead();
  auto* labels = Part<QComboBox>("cboLabel");
  labels->setCurrentText(QStringLiteral("P19"));
  QTest::keyClick(labels, Qt::Key_Return);
  ASSERT_TRUE(window_->IsBusy());
  window_->close();
  Start(PageKind::Label);
  ASSERT_TRUE(View().HasPage());
  ASSERT_TRUE(View().Page().OverTime);
  EXPECT_EQ(View().Page().OverTime->Label, "P19");
}

TEST_F(Curves, ACheckupThatEndedWithTheWindowIsMadeWhenItIsOpenedAgain) {
  Start();
  window_->AddTrials({ThreeTrials()[0]});
  ASSERT_TRUE(QTest::qWaitFor([this] { return Trial(0)->childCount() > 0; }));
  ASSERT_TRUE(window_->IsBusy()) << "it is read and about to be checked";
  window_->close();
  Start();
  EXPECT_EQ(Trial(0)->text(1), QStringLiteral("See checkup"));
}

TEST_F(Curves, ATrialThatCouldNotBeReadIsTriedOnceMoreWhenItIsDroppedAgain) {
  Start();
  const std::string path = (folder_ / "late.c3d").string();
  DropAll({path});
  EXPECT_FALSE(Trial(0)->text(1).isEmpty());
  Write(tests::RisingKnees(0), "late.c3d");
  DropAll({path});
  EXPECT_EQ(List()->topLevelItemCount(), 1);
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
}

TEST_F(Curves, ATrialThatCouldNotBeReadIsTriedOnceMoreWhenTheFormOpensIt) {
  Start();
  const std::string path = (folder_ / "late.c3d").string();
  DropAll({path});
  Write(tests::RisingKnees(0), "late.c3d");
  window_->Follow(path);
  WaitUntilRead();
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
}

TEST_F(Curves, DestroyedInTheMiddleOfAReadingItWaitsForNothing) {
  Start();
  const std::string path = Write(LongTrial(), "long.c3d");
  window_->AddTrials({path});
  QElapsedTimer timer;
  timer.start();
  window_.reset();
  EXPECT_LT(timer.elapsed(), 500);
  QTest::qWait(50);
}

}  // namespace
