// SPDX-License-Identifier: GPL-3.0-or-later

// How the whole window opens on the screen that the tests run on: its frame and its menus are
// within the work area, and the form inside shrinks by its own rule.

#include <algorithm>

#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QTest>

#include "app/FormColumn.h"
#include "app/FormLayout.h"
#include "app/Screens.h"
#include "tests/app/WindowFixture.h"

namespace {

class WindowScreen : public tests::WindowTest {
 protected:
  void StartAndSettle() {
    Start(WriteSampleWalk());
    constexpr int kLateAnswers = 100;  // milliseconds; of the window system
    QTest::qWait(kLateAnswers);
  }

  QRect Room() const { return window_.screen()->availableGeometry(); }

  void ExpectWithinTheWorkArea(const QWidget& shown, const char* name) {
    constexpr int kLateAnswers = 100;  // milliseconds; of the window system
    QTest::qWait(kLateAnswers);
    // The toolkit sometimes takes a frame that is still being made for an empty one.
    const QRect frame = shown.frameGeometry().united(shown.geometry());
    EXPECT_TRUE(Room().contains(frame))
        << name << ' ' << frame.x() << ' ' << frame.y() << ' ' << frame.width() << ' '
        << frame.height() << " in " << Room().width() << ' ' << Room().height();
  }
  app::FormColumn* Column() { return Control<app::FormColumn>("column"); }
};

TEST_F(WindowScreen, LiesWithItsFrameWithinTheWorkArea) {
  StartAndSettle();
  const QRect frame = window_.frameGeometry();
  EXPECT_TRUE(Room().contains(frame))
      << frame.x() << ' ' << frame.y() << ' ' << frame.width() << ' ' << frame.height() << " in "
      << Room().width() << ' ' << Room().height();
}

TEST_F(WindowScreen, ItsClientAreaIsAsLargeAsTheDesignOrAsFrameAndMenusLet) {
  StartAndSettle();
  const QSize room = Room().size() - (window_.frameSize() - form_.size());
  EXPECT_EQ(form_.size(), app::FormSizeWithin(room));
}

TEST_F(WindowScreen, TheMenusStandAboveTheFormAndTakeNothingOfIt) {
  StartAndSettle();
  EXPECT_GT(window_.menuBar()->height(), 0);
  EXPECT_EQ(form_.geometry().topLeft(), QPoint(0, window_.menuBar()->height()));
  EXPECT_EQ(form_.width(), window_.width());
  EXPECT_EQ(form_.geometry().bottom(), window_.height() - 1);
  EXPECT_EQ(Button("cmdOpen")->mapTo(&form_, QPoint(0, 0)), QPoint(8, 8));
}

TEST_F(WindowScreen, BeforeItIsShownStandsInTheMiddleAndAThirdOfTheWayDownTheScreen) {
  window_.Load({});
  const QRect screen = window_.screen()->geometry();
  const QRect place(screen.topLeft() + app::FormPosition(screen.size(), window_.size()),
                    window_.size());
  EXPECT_EQ(window_.pos(), app::NearestPlaceInside(Room(), place));
}

TEST_F(WindowScreen, OpenedSmallerOnlyThePaneAndTheTreeChangeByTheRule) {
  const QRect pane = Pane()->geometry();
  const QRect tree = Tree()->geometry();
  StartAndSettle();
  const QSize smaller = app::kDesignSize - form_.size();
  const int treeHeight = tree.height() - smaller.height();
  EXPECT_EQ(Pane()->geometry(), QRect(pane.topLeft(), pane.size() - smaller));
  EXPECT_EQ(Tree()->height(), treeHeight < 0 ? tree.height() : treeHeight);
}

TEST_F(WindowScreen, EveryControlOfTheColumnCanBeScrolledIntoSight) {
  StartAndSettle();
  QList<QWidget*> controls{Tree(), CheckBox()};
  for (auto* button : form_.findChildren<app::CaptionButton*>()) controls << button;
  for (QWidget* control : controls) {
    QScrollBar* bar = Column()->verticalScrollBar();
    bar->setValue(control->geometry().center().y() - Column()->height() / 2);
    QApplication::processEvents();
    EXPECT_EQ(control->visibleRegion().boundingRect().size(), control->size())
        << control->objectName().toStdString();
  }
}

TEST_F(WindowScreen, EveryMenuAndEveryEntryIsOnTheScreen) {
  StartAndSettle();
  for (QAction* top : window_.menuBar()->actions()) {
    const QRect place = window_.menuBar()->actionGeometry(top);
    EXPECT_TRUE(window_.menuBar()->rect().contains(place)) << top->text().toStdString();
    QTest::mouseClick(window_.menuBar(), Qt::LeftButton, {}, place.center());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(top->menu()));
    EXPECT_TRUE(window_.screen()->geometry().contains(top->menu()->geometry()))
        << top->text().toStdString();
    QTest::keyClick(top->menu(), Qt::Key_Escape);
  }
}

// Whether the arrows stop at an entry: in the styles of Windows at disabled ones, too.
bool IsReached(const QAction& entry, const QMenu& menu) {
  constexpr auto kStopsAtDisabled = QStyle::SH_Menu_AllowActiveAndDisabled;
  return !entry.isSeparator() &&
         (entry.isEnabled() || menu.style()->styleHint(kStopsAtDisabled, nullptr, &menu) != 0);
}

TEST_F(WindowScreen, EveryEntryOfAMenuComesIntoSightByTheArrows) {
  StartAndSettle();
  for (QAction* top : window_.menuBar()->actions()) {
    QMenu* menu = top->menu();
    QTest::mouseClick(window_.menuBar(), Qt::LeftButton, {},
                      window_.menuBar()->actionGeometry(top).center());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
    // To open the first one looks for other trials, which two of its entries wait for.
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window_.IsLookingAround(); }));
    QList<QAction*> entries = menu->actions();
    entries.removeIf([menu](QAction* entry) { return !IsReached(*entry, *menu); });
    for (QAction* entry : entries) {
      QTest::keyClick(menu, Qt::Key_Down);
      QApplication::processEvents();
      ASSERT_NE(menu->activeAction(), nullptr) << entry->text().toStdString();
      ASSERT_EQ(menu->activeAction()->text().toStdString(), entry->text().toStdString());
      const QRect place = menu->actionGeometry(entry);
      EXPECT_TRUE(menu->rect().contains(place)) << entry->text().toStdString();
      const QRect seen(menu->mapToGlobal(place.topLeft()), place.size());
      EXPECT_TRUE(window_.screen()->geometry().contains(seen)) << entry->text().toStdString();
    }
    QTest::keyClick(menu, Qt::Key_Escape);
  }
}

TEST_F(WindowScreen, TheDialogsOfItsEntriesLieWithinTheWorkArea) {
  StartAndSettle();
  // To cancel the choice of a trial ends the program, so that one comes last.
  for (const char* entry :
       {"mnuChooseNormals", "mnuSaveReport", "mnuSubject", "mnuKeys", "mnuAbout", "mnuOpen"}) {
    boxes_.Expect([this, entry](QDialog& dialog) {
      ExpectWithinTheWorkArea(dialog, entry);
      dialog.reject();
    });
    Entry(entry)->trigger();
  }
}

TEST_F(WindowScreen, TheManualLiesWithinTheWorkArea) {
  StartAndSettle();
  Entry("mnuManual")->trigger();
  ExpectWithinTheWorkArea(*QApplication::activeWindow(), "the manual");
}

class DarkWindow : public WindowScreen {
 protected:
  void TearDown() override { QApplication::setPalette(before_); }

  // The lightest and the darkest point of what is shown.
  static int Contrast(QWidget& widget) {
    const QImage shown = widget.grab().toImage();
    int lightest = 0;
    int darkest = 255;
    for (int y = 0; y < shown.height(); ++y) {
      for (int x = 0; x < shown.width(); ++x) {
        lightest = std::max(lightest, qGray(shown.pixel(x, y)));
        darkest = std::min(darkest, qGray(shown.pixel(x, y)));
      }
    }
    return lightest - darkest;
  }

 private:
  const QPalette before_ = QApplication::palette();
};

TEST_F(DarkWindow, ItsMenusAreDarkWithLightCaptions) {
  QPalette dark(QColor(43, 43, 46), QColor(35, 35, 38));
  dark.setColor(QPalette::Base, QColor(27, 27, 29));
  QApplication::setPalette(dark);
  StartAndSettle();
  const QImage bar = window_.menuBar()->grab().toImage();
  EXPECT_LT(qGray(bar.pixel(bar.width() - 5, bar.height() / 2)), 80);
  EXPECT_GT(Contrast(*window_.menuBar()), 120);
  QMenu* reports = MenuOf(Entry("cmdShowHeaderInfo"));
  EXPECT_GT(Contrast(*reports), 120);
}

// Where a window manager does not keep windows within the work area.
class WindowResize : public WindowScreen {};

TEST_F(WindowResize, GrowingTheWindowGrowsThePaneAndTheTreeByExactlyThat) {
  StartAndSettle();
  ResizeClient(app::kDesignSize);
  const QRect pane = Pane()->geometry();
  const QRect tree = Tree()->geometry();
  ResizeClient(app::kDesignSize + QSize(137, 59));
  EXPECT_EQ(Pane()->geometry(), QRect(pane.topLeft(), pane.size() + QSize(137, 59)));
  EXPECT_EQ(Tree()->geometry(), QRect(tree.topLeft(), tree.size() + QSize(0, 59)));
}

}  // namespace
