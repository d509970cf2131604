// SPDX-License-Identifier: GPL-3.0-or-later

// How the form opens on the screen that the tests run on: whatever its size, its scale and its
// panels, all of the form is on it and all of its controls can be reached.

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "app/FormColumn.h"
#include "app/FormLayout.h"
#include "app/Screens.h"
#include "tests/app/FormFixture.h"

namespace {

TEST(FrameOnScreen, StaysWhereItFits) {
  EXPECT_EQ(app::NearestPlaceInside({0, 0, 1366, 768}, {93, 9, 1180, 740}), QPoint(93, 9));
  EXPECT_EQ(app::NearestPlaceInside({0, 0, 1366, 768}, {186, 28, 1180, 740}), QPoint(186, 28));
}

TEST(FrameOnScreen, IsPushedBackOverTheEdgeThatItCrosses) {
  EXPECT_EQ(app::NearestPlaceInside({0, 0, 1366, 768}, {190, 9, 1180, 768}), QPoint(186, 0));
  EXPECT_EQ(app::NearestPlaceInside({1366, 30, 1366, 738}, {1300, 9, 700, 500}), QPoint(1366, 30));
}

TEST(FrameOnScreen, KeepsItsTitleBarInSightWhereItIsTooLarge) {
  EXPECT_EQ(app::NearestPlaceInside({0, 40, 1366, 728}, {93, 9, 1180, 768}), QPoint(93, 40));
  EXPECT_EQ(app::NearestPlaceInside({0, 0, 800, 600}, {-190, -46, 1180, 768}), QPoint(0, 0));
}

TEST(FormSize, IsThatOfTheDesignWhereThereIsRoom) {
  EXPECT_EQ(app::FormSizeWithin({1180, 740}), QSize(1180, 740));
  EXPECT_EQ(app::FormSizeWithin({3840, 2160}), QSize(1180, 740));
}

TEST(FormSize, IsTheRoomWhereThatIsSmaller) {
  EXPECT_EQ(app::FormSizeWithin({1278, 690}), QSize(1180, 690));
  EXPECT_EQ(app::FormSizeWithin({908, 1000}), QSize(908, 740));
  EXPECT_EQ(app::FormSizeWithin({908, 440}), QSize(908, 440));
}

TEST(FormSize, LeavesTheTreeSomeLinesOrAsItIsDrawn) {
  // The tree is as high as the form less 529.
  EXPECT_EQ(app::FormSizeWithin({1180, 529 + 60}).height(), 529 + 60);
  EXPECT_EQ(app::FormSizeWithin({1180, 529 + 59}).height(), 528);
  EXPECT_EQ(app::FormSizeWithin({1180, 529}).height(), 528);
  EXPECT_EQ(app::FormSizeWithin({1180, 528}).height(), 528);
}

class FormScreen : public tests::FormTest {
 protected:
  void StartAndSettle() {
    Start(WriteSampleWalk());
    constexpr int kLateAnswers = 100;  // milliseconds; of the window system
    QTest::qWait(kLateAnswers);
  }

  QRect Room() const { return form_.screen()->availableGeometry(); }
  app::FormColumn* Column() { return Control<app::FormColumn>("column"); }

  // All of the control that is on the form, in its coordinates.
  QRect Seen(const QWidget* control) const {
    return control->visibleRegion().boundingRect().translated(control->mapTo(&form_, QPoint(0, 0)));
  }

  QList<QWidget*> ControlsForKeys() {
    QList<QWidget*> controls;
    for (auto* button : form_.findChildren<app::CaptionButton*>()) controls << button;
    for (const char* name : {"txtGroup", "txtParam", "txtPointLabel", "txtAnalogLabel"}) {
      controls << Box(name);
    }
    return controls << CheckBox() << Tree();
  }
};

TEST_F(FormScreen, LiesWithItsFrameWithinTheWorkArea) {
  StartAndSettle();
  const QRect frame = form_.frameGeometry();
  EXPECT_TRUE(Room().contains(frame))
      << frame.x() << ' ' << frame.y() << ' ' << frame.width() << ' ' << frame.height() << " in "
      << Room().width() << ' ' << Room().height();
}

TEST_F(FormScreen, IsAsLargeAsTheDesignAndItsFrameLet) {
  StartAndSettle();
  const QSize room = Room().size() - (form_.frameSize() - form_.size());
  EXPECT_EQ(form_.size(), app::FormSizeWithin(room));
}

TEST_F(FormScreen, BeforeItIsShownStandsInTheMiddleAndAThirdOfTheWayDownTheScreen) {
  form_.Form_Load({});
  const QRect screen = form_.screen()->geometry();
  const QRect place(screen.topLeft() + app::FormPosition(screen.size(), form_.size()),
                    form_.size());
  EXPECT_EQ(form_.pos(), app::NearestPlaceInside(Room(), place));
}

TEST_F(FormScreen, OpenedSmallerOnlyThePaneAndTheTreeChangeByTheRule) {
  const QRect pane = Pane()->geometry();
  const QRect tree = Tree()->geometry();
  const QRect button = Button("cmdWriteGcdFiles")->geometry();
  StartAndSettle();
  const QSize smaller = app::kDesignSize - form_.size();
  const int treeHeight = tree.height() - smaller.height();
  EXPECT_EQ(Pane()->geometry(), QRect(pane.topLeft(), pane.size() - smaller));
  EXPECT_EQ(
      Tree()->geometry(),
      QRect(tree.topLeft(), QSize(tree.width(), treeHeight < 0 ? tree.height() : treeHeight)));
  EXPECT_EQ(Button("cmdWriteGcdFiles")->geometry(), button);
}

TEST_F(FormScreen, ThePaneIsAllInSight) {
  StartAndSettle();
  EXPECT_EQ(Seen(Pane()).size(), Pane()->size());
  EXPECT_GE(Pane()->width(), 400);
}

TEST_F(FormScreen, EveryControlOfTheColumnCanBeScrolledIntoSight) {
  StartAndSettle();
  for (QWidget* control : ControlsForKeys()) {
    QScrollBar* bar = Column()->verticalScrollBar();
    bar->setValue(control->geometry().center().y() - Column()->height() / 2);
    QApplication::processEvents();
    EXPECT_EQ(Seen(control).size(), control->size()) << control->objectName().toStdString();
  }
}

TEST_F(FormScreen, TabBringsEveryControlIntoSight) {
  StartAndSettle();
  Pane()->setFocus();
  for (int i = 0; i < ControlsForKeys().size(); ++i) {
    QTest::keyClick(form_.focusWidget(), Qt::Key_Tab);
    const QWidget* control = form_.focusWidget();
    EXPECT_EQ(Seen(control).size(), control->size()) << control->objectName().toStdString();
  }
  EXPECT_EQ(form_.focusWidget(), Tree());
}

TEST_F(FormScreen, EveryReportRunsByAClickOnWhatIsInSight) {
  StartAndSettle();
  for (const char* name : {"cmdShowHeaderInfo", "cmdShowStrikeOffEvents", "cmdShowAllGroups"}) {
    QPushButton* button = Button(name);
    Pane()->ShowText({});
    Column()->ensureWidgetVisible(button);
    QApplication::processEvents();
    const QPoint middle = button->mapTo(&form_, button->rect().center());
    ASSERT_EQ(form_.childAt(middle), button);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(PaneText().empty()) << name;
  }
}

// Where the tree is cut off, as on a screen that is too low for the column.
class LowForm : public FormScreen {
 protected:
  void StartLow() {
    StartAndSettle();
    form_.resize(form_.width(), 400);
    ASSERT_TRUE(QTest::qWaitFor([this] { return form_.height() == 400; }));
    QApplication::processEvents();
  }
};

TEST_F(LowForm, ScrollsItsColumnAndNotItsPane) {
  StartLow();
  const QRect pane = Pane()->geometry();
  EXPECT_TRUE(Seen(Tree()).isEmpty());
  EXPECT_TRUE(Column()->verticalScrollBar()->isVisible());
  EXPECT_FALSE(Column()->horizontalScrollBar()->isVisible());
  Column()->verticalScrollBar()->setValue(Column()->verticalScrollBar()->maximum());
  QApplication::processEvents();
  EXPECT_EQ(Seen(Tree()).size(), Tree()->size());
  EXPECT_EQ(Pane()->geometry(), pane);
  EXPECT_EQ(Seen(Pane()), pane);
}

TEST_F(LowForm, HasItsScrollBarInTheMarginBesideItsControls) {
  StartLow();
  const QScrollBar* bar = Column()->verticalScrollBar();
  const int left = bar->mapTo(&form_, QPoint(0, 0)).x();
  EXPECT_GE(left, Button("cmdWriteGcdFiles")->geometry().right() + 1);
  EXPECT_LE(left + bar->width(), Pane()->x());
}

TEST_F(LowForm, AClickOnAHalfHiddenButtonStillPressesIt) {
  StartLow();
  QPushButton* button = Button("cmdShowNormalized");
  ASSERT_LT(Seen(button).height(), button->height());
  ASSERT_GT(Seen(button).height(), 4);
  QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(20, 2));
  EXPECT_NE(PaneText(), "");
}

TEST_F(LowForm, GrownAgainNeedsNoScrolling) {
  StartLow();
  Column()->verticalScrollBar()->setValue(100);
  form_.resize(app::kDesignSize);
  ASSERT_TRUE(QTest::qWaitFor([this] { return form_.size() == app::kDesignSize; }));
  QApplication::processEvents();
  EXPECT_FALSE(Column()->verticalScrollBar()->isVisible());
  EXPECT_EQ(Button("cmdOpen")->mapTo(&form_, QPoint(0, 0)), QPoint(8, 8));
}

}  // namespace
