// SPDX-License-Identifier: GPL-3.0-or-later

// The search in the pane.

#include <algorithm>
#include <string>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QToolButton>

#include "app/FindBar.h"
#include "app/FoldedSearch.h"
#include "tests/app/FormFixture.h"

namespace {

class Find : public tests::FormTest {
 protected:
  long SelectionStart() { return Pane()->SendScintilla(QsciScintilla::SCI_GETSELECTIONSTART); }
  long SelectionEnd() { return Pane()->SendScintilla(QsciScintilla::SCI_GETSELECTIONEND); }

  void StartWith(const char* text) {
    Start();
    Pane()->Append(text);
    Pane()->setFocus();
    QTest::keyClick(Pane(), Qt::Key_F, Qt::ControlModifier);
  }

  app::FindBar* Bar() { return Control<app::FindBar>("findBar"); }
  QLineEdit* Wanted() { return Box("txtFind"); }
  QLabel* Result() { return Control<QLabel>("lblFindResult"); }
  void Want(const QString& text) {
    Wanted()->selectAll();
    Wanted()->insert(text);
  }
};

TEST_F(Find, CtrlFOpensTheBarReadyForTyping) {
  StartWith("text");
  EXPECT_TRUE(Bar()->isVisible());
  EXPECT_TRUE(Wanted()->hasFocus());
  EXPECT_TRUE(Pane()->rect().contains(Bar()->geometry()));
}

TEST_F(Find, EnterGoesFromPlaceToPlaceInAnyCaseAndRoundAtTheEnd) {
  StartWith("Left foot\nleft hand\n");
  QTest::keyClicks(Wanted(), QStringLiteral("LEFT"));
  QTest::keyClick(Wanted(), Qt::Key_Return);
  EXPECT_EQ(SelectionStart(), 0);
  EXPECT_EQ(SelectionEnd(), 4);
  QTest::keyClick(Wanted(), Qt::Key_Return);
  EXPECT_EQ(SelectionStart(), 10);
  QTest::keyClick(Wanted(), Qt::Key_Return);
  EXPECT_EQ(SelectionStart(), 0);
  QTest::keyClick(Wanted(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(SelectionStart(), 10);
  QTest::keyClick(&form_, Qt::Key_F3);
  EXPECT_EQ(SelectionStart(), 0);
  QTest::mouseClick(Control<QToolButton>("cmdFindPrevious"), Qt::LeftButton);
  EXPECT_EQ(SelectionStart(), 10);
}

TEST_F(Find, UmlautsAreFoundAsTheyAreTyped) {
  StartWith(
      "Stra\xC3\x9F"
      "e \xC3\xBC"
      "ber\n");
  Wanted()->insert(QStringLiteral("\u00FCBER"));
  QTest::keyClick(Wanted(), Qt::Key_Return);
  EXPECT_EQ(Pane()->selectedText(), QStringLiteral("\u00FCber"));
}

TEST_F(Find, WhatIsNotThereIsSaidAndTheSelectionStays) {
  StartWith("Left foot\n");
  QTest::keyClicks(Wanted(), QStringLiteral("foot"));
  QTest::keyClick(Wanted(), Qt::Key_Return);
  QTest::keyClicks(Wanted(), QStringLiteral("ball"));
  QTest::keyClick(Wanted(), Qt::Key_Return);
  EXPECT_TRUE(Control<QLabel>("lblFindResult")->isVisible());
  EXPECT_EQ(SelectionStart(), 5);
  QTest::keyClick(Wanted(), Qt::Key_Backspace);
  EXPECT_FALSE(Control<QLabel>("lblFindResult")->isVisible());
}

TEST_F(Find, EscapeClosesTheBarAndGoesBackToThePane) {
  StartWith("text");
  QTest::keyClick(Wanted(), Qt::Key_Escape);
  EXPECT_FALSE(Bar()->isVisible());
  EXPECT_TRUE(Pane()->hasFocus());
}

TEST_F(Find, EscapeClosesTheBarFromThePaneToo) {
  StartWith("text");
  Pane()->setFocus();
  QTest::keyClick(Pane(), Qt::Key_Escape);
  EXPECT_FALSE(Bar()->isVisible());
  EXPECT_TRUE(Pane()->hasFocus());
}

TEST_F(Find, EscapeClosesTheBarFromAnywhereInTheWindow) {
  StartWith("text");
  Box("txtGroup")->setFocus();
  QTest::keyClick(Box("txtGroup"), Qt::Key_Escape);
  EXPECT_FALSE(Bar()->isVisible());
}

TEST_F(Find, F3SaysWhatIsNotThereWhereTheBarIsClosed) {
  StartWith("text");
  QTest::keyClicks(Wanted(), QStringLiteral("zzz"));
  QTest::keyClick(Wanted(), Qt::Key_Escape);
  ASSERT_FALSE(Bar()->isVisible());
  Pane()->setSelection(0, 0, 0, 4);
  QTest::keyClick(&form_, Qt::Key_F3);
  EXPECT_EQ(Wanted()->text(), QStringLiteral("zzz"));
  EXPECT_TRUE(Bar()->isVisible());
  EXPECT_TRUE(Control<QLabel>("lblFindResult")->isVisible());
}

TEST_F(Find, TheBarNeverLiesOverWhatWasFound) {
  // At the end of a line as wide as the pane, first on the first line, then far below.
  const std::string wide(80, '.');
  std::string text = wide + "toe\n";
  for (int i = 0; i < 300; ++i) text += wide + "\n";
  text += wide + "toe\n";
  StartWith((text + text).c_str());
  QTest::keyClicks(Wanted(), QStringLiteral("toe"));
  int besideTheTop = 0;
  for (int i = 0; i < 4; ++i) {
    QTest::keyClick(Wanted(), Qt::Key_Return);
    ASSERT_EQ(Pane()->selectedText(), QStringLiteral("toe"));
    const QRect view = Pane()->viewport()->geometry();
    const QRect found = Pane()->SelectionPlace().translated(view.topLeft());
    EXPECT_TRUE(view.contains(found)) << i;
    EXPECT_FALSE(Bar()->geometry().intersects(found)) << i;
    EXPECT_TRUE(view.contains(Bar()->geometry())) << i;
    besideTheTop += Bar()->geometry().top() == view.top() ? 1 : 0;
  }
  EXPECT_LT(besideTheTop, 4) << "the first line lies under the upper corner";
}

TEST_F(Find, ASelectionWithinALineIsTakenOver) {
  Start();
  Pane()->Append("some words\nmore\n");
  Pane()->setSelection(0, 5, 0, 10);
  QTest::keyClick(Pane(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Wanted()->text(), QStringLiteral("words"));
}

TEST_F(Find, TheBarStaysInTheCornerWhenTheFormIsResized) {
  StartWith("text");
  form_.resize(1000, 600);
  QApplication::processEvents();
  EXPECT_EQ(Bar()->geometry().right(), Pane()->viewport()->geometry().right());
}

// A screen of 1366 x 768 at 200 % leaves the pane so wide.
TEST_F(Find, InANarrowPaneTheBarIsNarrowerWhateverItSays) {
  StartWith("Left foot\n");
  form_.resize(683, 352);
  Want(QStringLiteral("ball"));
  for (const QString& result :
       {QStringLiteral("not found"), QStringLiteral("continued from the start")}) {
    QTest::keyClick(Wanted(), Qt::Key_Return);
    QTest::keyClick(Wanted(), Qt::Key_Return);
    EXPECT_EQ(Result()->text(), result);
    EXPECT_TRUE(Pane()->viewport()->geometry().contains(Bar()->geometry()));
    EXPECT_GE(Wanted()->width(), 60);
    EXPECT_LE(Result()->heightForWidth(Result()->width()), Result()->height());
    for (QWidget* part : Bar()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      EXPECT_TRUE(Bar()->rect().contains(part->geometry())) << part->objectName().toStdString();
    }
    Want(QStringLiteral("foot"));
  }
  form_.resize(1180, 740);
  EXPECT_EQ(Wanted()->width(), 180);
  EXPECT_FALSE(Result()->wordWrap());
}

TEST_F(Find, ItsButtonsDoWhatTheySayWhenEnterIsPressedOnThem) {
  StartWith("toe 1\ntoe 2\ntoe 3\n");
  Want(QStringLiteral("toe"));
  auto* previous = Control<QToolButton>("cmdFindPrevious");
  auto* next = Control<QToolButton>("cmdFindNext");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Pane()->setSelection(1, 0, 1, 3);
    next->setFocus();
    QTest::keyClick(next, key);
    EXPECT_EQ(SelectionStart(), 12);
    previous->setFocus();
    QTest::keyClick(previous, key);
    EXPECT_EQ(SelectionStart(), 6);
    QTest::keyClick(previous, key);
    EXPECT_EQ(SelectionStart(), 0);
  }
  auto* close = Control<QToolButton>("cmdFindClose");
  close->setFocus();
  QTest::keyClick(close, Qt::Key_Return);
  EXPECT_FALSE(Bar()->isVisible());
  EXPECT_EQ(SelectionStart(), 0) << "it searched as well";
}

TEST_F(Find, WhatIsFoundStandsBetweenOtherLines) {
  std::string text;
  for (int i = 0; i < 400; ++i) text += i % 97 == 96 ? "toe\n" : "line\n";
  StartWith(text.c_str());
  Want(QStringLiteral("toe"));
  const auto linesAround = [this] {
    int line = 0;
    int ignored = 0;
    Pane()->getSelection(&line, &ignored, &ignored, &ignored);
    const long seen = Pane()->SendScintilla(QsciScintilla::SCI_LINESONSCREEN);
    const int first = Pane()->firstVisibleLine();
    return std::min<long>(line - first, first + seen - 1 - line);
  };
  for (const Qt::KeyboardModifiers keys : {Qt::NoModifier, Qt::ShiftModifier}) {
    for (int i = 0; i < 4; ++i) {
      QTest::keyClick(Wanted(), Qt::Key_Return, keys);
      EXPECT_GE(linesAround(), 3) << SelectionStart();
    }
  }
}

TEST_F(Find, ASearchThatGoesRoundTheEndSaysSo) {
  StartWith("toe 1\ntoe 2\n");
  Want(QStringLiteral("toe"));
  QTest::keyClick(Wanted(), Qt::Key_Return);
  EXPECT_FALSE(Result()->isVisible()) << "the caret only stands where the report ended";
  QTest::keyClick(Wanted(), Qt::Key_Return);
  EXPECT_FALSE(Result()->isVisible());
  QTest::keyClick(Wanted(), Qt::Key_Return);
  EXPECT_EQ(SelectionStart(), 0);
  EXPECT_TRUE(Result()->isVisible());
  EXPECT_EQ(Result()->text(), QStringLiteral("continued from the start"));
  QTest::keyClick(Wanted(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(SelectionStart(), 6);
  EXPECT_EQ(Result()->text(), QStringLiteral("continued from the end"));
  QTest::keyClick(Wanted(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_FALSE(Result()->isVisible());
}

TEST_F(Find, WhatWasSaidOfAnotherTextIsNotSaidOfThisOne) {
  StartWith("Left foot\n");
  Want(QStringLiteral("hand"));
  QTest::keyClick(Wanted(), Qt::Key_Return);
  ASSERT_TRUE(Result()->isVisible());
  Pane()->ShowText("Left hand\n");
  EXPECT_FALSE(Result()->isVisible());
  EXPECT_TRUE(Bar()->isVisible());
}

TEST_F(Find, AfterZoomingTheBarStillDoesNotLieOverWhatWasFound) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += std::string(30, '.') + (i == 0 ? "toe\n" : "...\n");
  StartWith(text.c_str());
  Want(QStringLiteral("toe"));
  QTest::keyClick(Wanted(), Qt::Key_Return);
  const QPoint view = Pane()->viewport()->geometry().topLeft();
  bool crossed = false;
  for (const int zoom : {0, 4, 8, 12, 16, 20, 0}) {
    Pane()->zoomTo(zoom);
    QApplication::processEvents();
    const QRect found = Pane()->SelectionPlace().translated(view);
    EXPECT_FALSE(Bar()->geometry().intersects(found)) << zoom;
    crossed = crossed || Bar()->geometry().top() != view.y();
  }
  EXPECT_TRUE(crossed) << "no zoom brings it under the bar";
}

TEST_F(Find, F3SaysThatItWentRoundWhereTheBarIsClosed) {
  StartWith("toe 1\n");
  Want(QStringLiteral("toe"));
  QTest::keyClick(Wanted(), Qt::Key_Return);
  QTest::keyClick(Wanted(), Qt::Key_Escape);
  QTest::keyClick(&form_, Qt::Key_F3);
  EXPECT_TRUE(Bar()->isVisible());
  EXPECT_EQ(Result()->text(), QStringLiteral("continued from the start"));
}

TEST_F(Find, LettersBeyondZMatchInBothCases) {
  StartWith("\xC3\x84rger, \xC3\xA9tude, \xCE\xA9mega, 5 \xC2\xB5V\n");
  for (const auto& [wanted, found] :
       {std::pair(u"\u00E4RGER", u"\u00C4rger"), std::pair(u"\u00C9TUDE", u"\u00E9tude"),
        std::pair(u"\u03C9M", u"\u03A9m"), std::pair(u"R, \u00C9", u"r, \u00E9")}) {
    for (const Qt::KeyboardModifiers keys : {Qt::NoModifier, Qt::ShiftModifier}) {
      Pane()->SendScintilla(QsciScintilla::SCI_SETEMPTYSELECTION, 0UL);
      Want(QString::fromUtf16(wanted));
      QTest::keyClick(Wanted(), Qt::Key_Return, keys);
      EXPECT_EQ(Pane()->selectedText(), QString::fromUtf16(found));
    }
  }
}

TEST(FoldedSearch, GoesBothWaysWithinItsBounds) {
  const std::string text = "\xC3\xA4 \xC3\x84 \xC3\xA4";  // at 0, 3 and 6
  const auto start = [&](long from, long to) {
    const auto place = app::FindFolded(text, "\xC3\x84", from, to);
    return place ? place->Start : -1;
  };
  EXPECT_EQ(start(0, 8), 0);
  EXPECT_EQ(start(2, 8), 3);
  EXPECT_EQ(start(8, 0), 6);
  EXPECT_EQ(start(6, 0), 3);
  EXPECT_EQ(start(0, 1), -1);
  EXPECT_EQ(start(7, 8), -1);
  EXPECT_FALSE(app::FindFolded(text, "", 0, 8).has_value());
  EXPECT_FALSE(app::FindFolded("", "a", 0, 0).has_value());
}

TEST(FoldedSearch, PassesOverBytesThatAreNoUtf8) {
  const std::string text = "\xFC\xC3 x\xE4\xC3\xBC";
  const auto place = app::FindFolded(text, "\xC3\x9C", 0, static_cast<long>(text.size()));
  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(place->Start, 5);
  EXPECT_EQ(place->End, 7);
}

}  // namespace
