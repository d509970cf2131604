// SPDX-License-Identifier: GPL-3.0-or-later

// The page of the curves window under mouse, wheel and keys.

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QWheelEvent>

#include "tests/app/CurvesFixture.h"

namespace {

using modVantrel::GaitSide;
using pages::StrideId;
using tests::KneeAt;

class CurvesPage : public tests::CurvesTest {
 protected:
  void StartWithOne() {
    Start();
    DropAll({ThreeTrials()[0]});
    ASSERT_TRUE(View().HasPage());
  }

  void Wheel(const QPoint& place, int notches) {
    QWheelEvent event(place, View().mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&View(), &event);
    QApplication::processEvents();
  }

  // Where the left curve of stride 2 stands at 40 percent.
  QPoint OnStride2() { return PlaceOf("Knee flexion", 40, KneeAt(0, 1.9)); }
  static constexpr StrideId kStride2{0, GaitSide::Left, 2};
};

TEST_F(CurvesPage, HoveringNamesSideStrideFilePercentAndValueOfThePage) {
  StartWithOne();
  HoverAt(OnStride2());
  const auto value = CurvesOf("Knee flexion").Curves.at(1).Values.at(20);
  ASSERT_TRUE(value);
  EXPECT_NEAR(double{*value}, 19.0, 1e-4);
  const QString expected = QStringLiteral("Left stride 2 of one.c3d, 40 %: Knee flexion 19.00 deg");
  EXPECT_EQ(Pointed(), expected);
  EXPECT_EQ(Part<QLabel>("lblPointed")->text(), expected);
}

TEST_F(CurvesPage, HoveringOverNothingNamesNothing) {
  StartWithOne();
  HoverAt(OnStride2());
  HoverAt(PlaceOf("Knee flexion", 40, 70));
  EXPECT_EQ(Pointed(), QString());
  EXPECT_EQ(Part<QLabel>("lblPointed")->text(), QString());
}

TEST_F(CurvesPage, HoveringOverAMeanNamesItsStridesAndDeviation) {
  StartWithOne();
  Entry("mnuMeans")->trigger();
  ClickCheckMark(Stride(0, "Left stride 3"));
  HoverAt(PlaceOf("Knee flexion", 20, KneeAt(0, 1.2)));
  EXPECT_EQ(Pointed(),
            QStringLiteral("Left mean of 2 strides, 20 %: Knee flexion 12.00 \u00b1 7.07 deg"));
}

TEST_F(CurvesPage, AClickLiftsAStrideInAllPanelsAndAClickOnNothingPutsItBack) {
  StartWithOne();
  const QImage before = View().Picture().toImage();
  QTest::mouseClick(&View(), Qt::LeftButton, {}, OnStride2());
  ASSERT_TRUE(View().Lifted());
  EXPECT_EQ(*View().Lifted(), kStride2);
  EXPECT_NE(View().Picture().toImage(), before);
  QTest::mouseClick(&View(), Qt::LeftButton, {}, PlaceOf("Hip flexion", 40, 70));
  EXPECT_FALSE(View().Lifted());
  EXPECT_EQ(View().Picture().toImage(), before);
}

TEST_F(CurvesPage, EscapePutsALiftedStrideBack) {
  StartWithOne();
  QTest::mouseClick(&View(), Qt::LeftButton, {}, OnStride2());
  ASSERT_TRUE(View().Lifted());
  QTest::keyClick(&View(), Qt::Key_Escape);
  EXPECT_FALSE(View().Lifted());
}

TEST_F(CurvesPage, ArrowsWalkThroughTheStridesAndNameThem) {
  StartWithOne();
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_Right);
  ASSERT_TRUE(View().Lifted());
  EXPECT_EQ(*View().Lifted(), (StrideId{0, GaitSide::Left, 1}));
  QTest::keyClick(&View(), Qt::Key_Down);
  EXPECT_EQ(*View().Lifted(), kStride2);
  for (int i = 0; i < 2; ++i) QTest::keyClick(&View(), Qt::Key_Left);
  EXPECT_EQ(*View().Lifted(), (StrideId{0, GaitSide::Right, 2}))
      << "the last comes before the first";
  // To the panel of knee flexion, and along its curve.
  const std::size_t knee = Panel("Knee flexion");
  for (std::size_t i = 0; i < knee; ++i) QTest::keyClick(&View(), Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Pointed(), QStringLiteral("Right stride 2 of one.c3d, 50 %: Knee flexion 25.00 deg"));
  QTest::keyClick(&View(), Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(Pointed(), QStringLiteral("Right stride 2 of one.c3d, 52 %: Knee flexion 25.20 deg"));
}

TEST_F(CurvesPage, SpaceAndDeleteLeaveTheLiftedStrideOut) {
  StartWithOne();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Delete}) {
    const std::size_t before = CurvesOf("Knee flexion").Curves.size();
    QTest::keyClick(&View(), Qt::Key_Right);
    QTest::keyClick(&View(), key);
    EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), before - 1);
    EXPECT_FALSE(View().Lifted());
  }
  EXPECT_EQ(Stride(0, "Left stride 1")->checkState(0), Qt::Unchecked);
  EXPECT_EQ(Stride(0, "Left stride 2")->checkState(0), Qt::Unchecked);
  EXPECT_EQ(List()->topLevelItemCount(), 1) << "Delete in the page removes no trial";
  Entry("mnuAllStrides")->trigger();
  EXPECT_EQ(CurvesOf("Knee flexion").Curves.size(), 5U);
}

TEST_F(CurvesPage, TheWheelZoomsThePanelAroundThePointerAndADoubleClickPutsItBack) {
  StartWithOne();
  const QImage before = View().Picture().toImage();
  const std::size_t knee = Panel("Knee flexion");
  const plot::PanelView whole = View().Sight(knee).View;
  const QPoint place = OnStride2();
  Wheel(place, 3);
  const plot::PanelView zoomed = View().Sight(knee).View;
  EXPECT_LT(zoomed.High - zoomed.Low, 0.6 * (whole.High - whole.Low));
  EXPECT_EQ(zoomed.LowPercent, 0);
  EXPECT_EQ(zoomed.HighPercent, 100);
  EXPECT_LE((OnStride2() - place).manhattanLength(), 2) << "what is below the pointer stays there";
  const std::size_t hip = Panel("Hip flexion");
  EXPECT_EQ(View().Sight(hip).View.High, app::WholeOf(View().Page().Panels.at(hip)).High);
  HoverAt(OnStride2());
  EXPECT_TRUE(Pointed().startsWith(QStringLiteral("Left stride 2 of one.c3d, 40 %")));
  View().Lift(std::nullopt);
  QTest::mouseMove(&View(), {1, 1});
  QTest::mouseDClick(&View(), Qt::LeftButton, {}, PlaceOf("Knee flexion", 80, zoomed.Low + 1));
  EXPECT_EQ(View().Sight(knee).View.High, whole.High);
  View().Lift(std::nullopt);
  EXPECT_EQ(View().Picture().toImage(), before);
}

TEST_F(CurvesPage, TheWheelBackwardsEndsAtTheWholePanel) {
  StartWithOne();
  const std::size_t knee = Panel("Knee flexion");
  const plot::PanelView whole = View().Sight(knee).View;
  Wheel(OnStride2(), 2);
  Wheel(OnStride2(), -5);
  EXPECT_EQ(View().Sight(knee).View.Low, whole.Low);
  EXPECT_EQ(View().Sight(knee).View.High, whole.High);
}

TEST_F(CurvesPage, KeysZoomThePanelThatTheyWork) {
  StartWithOne();
  QTest::keyClick(&View(), Qt::Key_Right, Qt::ShiftModifier);
  const plot::PanelView whole = View().Sight(1).View;
  QTest::keyClick(&View(), Qt::Key_Plus);
  EXPECT_LT(View().Sight(1).View.High, whole.High);
  QTest::keyClick(&View(), Qt::Key_0);
  EXPECT_EQ(View().Sight(1).View.High, whole.High);
}

// What is drawn panel by panel is the page as it is drawn in one.
TEST_F(CurvesPage, PanelsThatAreDrawnAnewGiveThePageThatIsDrawnWhole) {
  StartWithOne();
  QTest::mouseClick(&View(), Qt::LeftButton, {}, OnStride2());
  const QImage byPanels = View().Picture().toImage();
  View().SetStyle(View().Style().Curves, false);
  EXPECT_EQ(View().Picture().toImage(), byPanels);
}

TEST_F(CurvesPage, TheDesktopsColoursAreThoseOfThePage) {
  StartWithOne();
  EXPECT_FALSE(View().Style().IsDark);
  window_->setPalette(QPalette(QColor(0x2b2b2e), QColor(0x232326)));
  QApplication::processEvents();
  EXPECT_TRUE(View().Style().IsDark);
  EXPECT_LT(View().Picture().toImage().pixelColor(2, 2).lightness(), 80);
}

TEST_F(CurvesPage, IsDrawnInThePixelsOfTheScreen) {
  StartWithOne();
  const QPixmap picture = View().Picture();
  EXPECT_EQ(picture.devicePixelRatio(), View().devicePixelRatioF());
  EXPECT_EQ(picture.size(), (QSizeF(View().size()) * View().devicePixelRatioF()).toSize());
}

}  // namespace
