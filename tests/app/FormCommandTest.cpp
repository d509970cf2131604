// SPDX-License-Identifier: GPL-3.0-or-later

// One command at a time: what is pressed while one runs is dropped.

#include <functional>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <QtGui/private/qhighdpiscaling_p.h>
#include <qpa/qwindowsysteminterface.h>

#include "app/FormColumn.h"
#include "tests/app/FormFixture.h"

namespace {

using Late = QWindowSystemInterface::AsynchronousDelivery;

// Counts the reports, by the repaint of the emptied pane that each begins with, and does something
// in the middle of the first one.
class ReportWatch : public QObject {
 public:
  ReportWatch(app::OutputPane* pane, std::function<void()> action)
      : pane_(pane), action_(std::move(action)) {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();  // paints that are due already
    pane_->ShowText("not empty");
    QApplication::processEvents();
    pane_->viewport()->installEventFilter(this);
  }

  int Reports() const { return reports_; }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::Paint || pane_->length() != 0) return false;
    if (++reports_ == 1) action_();
    return false;
  }

 private:
  app::OutputPane* pane_;
  std::function<void()> action_;
  int reports_ = 0;
};

class FormCommand : public tests::FormTest {
 protected:
  // Hands an event to the window system's queue, from which the program takes it when it next asks.
  void PostMouse(QWidget* target, QPoint place, QEvent::Type type) {
    QWindow* window = form_.window()->windowHandle();
    Control<app::FormColumn>("column")->ensureWidgetVisible(target);
    const QPointF global = target->mapToGlobal(QPointF(place));
    const QPointF local = target->mapTo(form_.window(), QPointF(place));
    const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QWindowSystemInterface::handleMouseEvent<Late>(
        window, QHighDpi::toNativeLocalPosition(local, window),
        QHighDpi::toNativeGlobalPosition(global, window), held, Qt::LeftButton, type);
  }

  void PostClick(QWidget* target, QPoint place) {
    PostMouse(target, place, QEvent::MouseButtonPress);
    PostMouse(target, place, QEvent::MouseButtonRelease);
  }

  void PostClick(const char* button) { PostClick(Button(button), Button(button)->rect().center()); }

  void PostKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QWindowSystemInterface::handleKeyEvent<Late>(form_.window()->windowHandle(), type, key,
                                                   modifiers);
    }
  }

  static void Settle() {
    constexpr int kLateEvents = 50;  // milliseconds
    QTest::qWait(kLateEvents);
  }

  QPoint MiddleOf(int group) {
    return Tree()->visualItemRect(Tree()->topLevelItem(group)).center();
  }
};

TEST_F(FormCommand, EventsOfTheWindowSystemWorkTheForm) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [] {});
  PostClick("cmdShowHeaderInfo");
  Settle();
  EXPECT_EQ(watch.Reports(), 1);
  Button("cmdShowAllGroups")->setFocus();
  PostKey(Qt::Key_Space);
  Settle();
  EXPECT_EQ(watch.Reports(), 2);
}

TEST_F(FormCommand, ASecondPressWhileItRunsIsDropped) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [this] { PostClick("cmdShowHeaderInfo"); });
  Click("cmdShowHeaderInfo");
  Settle();
  EXPECT_EQ(watch.Reports(), 1);
}

TEST_F(FormCommand, APressOfAnotherButtonWhileItRunsIsDropped) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [this] { PostClick("cmdShowAllGroups"); });
  Click("cmdShowHeaderInfo");
  Settle();
  EXPECT_EQ(watch.Reports(), 1);
  EXPECT_TRUE(PaneText().starts_with("OpenC3dFileSpec: "));
}

TEST_F(FormCommand, KeysWhileItRunsAreDropped) {
  Start(WriteSampleWalk());
  Button("cmdShowHeaderInfo")->setFocus();
  ReportWatch watch(Pane(), [this] {
    PostKey(Qt::Key_Space);
    PostKey(Qt::Key_Return);
    PostKey(Qt::Key_O, Qt::ControlModifier);  // would show a dialog, which nobody expects
    PostKey(Qt::Key_Q, Qt::ControlModifier);
  });
  QTest::keyClick(Button("cmdShowHeaderInfo"), Qt::Key_Return);
  Settle();
  EXPECT_EQ(watch.Reports(), 1);
  EXPECT_FALSE(form_.IsUnloaded());
}

TEST_F(FormCommand, ADoubleClickInTheTreeWhileItRunsIsDropped) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [this] {
    PostClick(Tree()->viewport(), MiddleOf(1));
    PostClick(Tree()->viewport(), MiddleOf(1));
  });
  Click("cmdShowHeaderInfo");
  Settle();
  EXPECT_EQ(watch.Reports(), 1);
  EXPECT_EQ(Box("txtGroup")->text(), QString());
  EXPECT_TRUE(Tree()->selectedItems().isEmpty());
}

TEST_F(FormCommand, AnotherReportDoesNotStartInsideIt) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [this] {
    emit Button("cmdShowAllGroups")->clicked();
    emit Tree()->DblClick(Tree()->topLevelItem(1));
    emit Tree()->NodeClick(Tree()->topLevelItem(1));
  });
  Click("cmdShowHeaderInfo");
  EXPECT_EQ(watch.Reports(), 1);
  EXPECT_TRUE(PaneText().starts_with("OpenC3dFileSpec: "));
  EXPECT_EQ(Box("txtGroup")->text(), QString());
}

TEST_F(FormCommand, ADropWhileItRunsIsRefused) {
  const std::string other = Write(SampleTrial(), "other.c3d");
  const std::string walk = WriteSampleWalk();
  Start(walk);
  QTimer drop;
  drop.setSingleShot(true);
  QObject::connect(&drop, &QTimer::timeout, [&] { Drop(other); });
  ReportWatch watch(Pane(), [&] { drop.start(0); });
  Click("cmdShowHeaderInfo");
  Settle();
  EXPECT_EQ(form_.windowTitle().toStdString(), walk);
}

TEST_F(FormCommand, ClosedWhileItRunsTheProgramEndsWellBehindIt) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [this] {
    QWindowSystemInterface::handleCloseEvent<Late>(form_.window()->windowHandle());
    PostClick("cmdShowAllGroups");
  });
  Click("cmdShowHeaderInfo");
  EXPECT_TRUE(PaneText().starts_with("OpenC3dFileSpec: ")) << "the report is whole";
  Settle();
  EXPECT_TRUE(form_.IsUnloaded());
  EXPECT_EQ(form_.ExitStatus(), 0);
  EXPECT_EQ(watch.Reports(), 1);
}

TEST_F(FormCommand, WhatIsPressedAfterwardsRuns) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [this] { PostClick("cmdShowHeaderInfo"); });
  Click("cmdShowHeaderInfo");
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  PostClick("cmdShowAllGroups");
  Settle();
  EXPECT_EQ(watch.Reports(), 2);
  EXPECT_TRUE(PaneText().starts_with("POINT\n"));
}

TEST_F(FormCommand, AButtonHeldDownWhenItEndsDoesNothingWhenItIsLetGo) {
  Start(WriteSampleWalk());
  const QPoint middle = Button("cmdShowAllGroups")->rect().center();
  ReportWatch watch(
      Pane(), [&] { PostMouse(Button("cmdShowAllGroups"), middle, QEvent::MouseButtonPress); });
  Click("cmdShowHeaderInfo");
  PostMouse(Button("cmdShowAllGroups"), middle, QEvent::MouseButtonRelease);
  Settle();
  EXPECT_EQ(watch.Reports(), 1);
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  PostClick("cmdShowAllGroups");
  Settle();
  EXPECT_EQ(watch.Reports(), 2);
}

TEST_F(FormCommand, WriteGcdFilesDoesNotAskAboutWhatItHasJustWritten) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [this] { PostClick("cmdWriteGcdFiles"); });
  Click("cmdWriteGcdFiles");
  Settle();
  EXPECT_TRUE(boxes_.Seen().empty());
  EXPECT_TRUE(PaneText().ends_with("Done.\n"));
}

TEST_F(FormCommand, ADoubleClickOnAButtonRunsItOnce) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [] {});
  PostClick("cmdShowHeaderInfo");
  Settle();
  PostClick("cmdShowHeaderInfo");
  Settle();
  EXPECT_EQ(watch.Reports(), 1);
}

TEST_F(FormCommand, ADoubleClickInTheTreeIsOneCommandHoweverLateItsClicksAreServed) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [] {});
  PostClick(Tree()->viewport(), MiddleOf(1));
  PostClick(Tree()->viewport(), MiddleOf(1));
  Settle();
  EXPECT_EQ(watch.Reports(), 1);
  EXPECT_EQ(Box("txtGroup")->text(), Tree()->topLevelItem(1)->text(0));
}

TEST_F(FormCommand, AKeyThatIsHeldDownRunsItOnce) {
  Start(WriteSampleWalk());
  ClickNode({QStringLiteral("POINT")});
  ReportWatch watch(Pane(), [] {});
  int expected = 0;
  for (QWidget* control :
       {static_cast<QWidget*>(Button("cmdShowHeaderInfo")), static_cast<QWidget*>(Tree())}) {
    control->setFocus();
    QTest::keyPress(control, Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
      QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
      QApplication::sendEvent(control, &repeated);
    }
    EXPECT_EQ(watch.Reports(), ++expected) << control->objectName().toStdString();
  }
}

TEST_F(FormCommand, AShortcutThatIsHeldDownRunsItOnce) {
  Start(WriteSampleWalk());
  ReportWatch watch(Pane(), [] {});
  for (const bool repeated : {false, true, true}) {
    QWindowSystemInterface::handleKeyEvent<Late>(form_.window()->windowHandle(), QEvent::KeyPress,
                                                 Qt::Key_I, Qt::ControlModifier, QString(),
                                                 repeated);
    Settle();
  }
  EXPECT_EQ(watch.Reports(), 1);
}

TEST_F(FormCommand, AfterAnErrorNothingStaysShut) {
  Start();
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Drop((folder_ / "nowhere.c3d").string());
  Drop(WriteSampleWalk());
  ReportWatch watch(Pane(), [] {});
  Click("cmdShowHeaderInfo");
  EXPECT_EQ(watch.Reports(), 1);
}

}  // namespace
