// SPDX-License-Identifier: GPL-3.0-or-later

// The pane as a reader uses it: keys, selection, search, zoom, colours.

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPalette>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "app/FindBar.h"
#include "tests/app/FormFixture.h"

namespace {

class OutputPane : public tests::FormTest {
 protected:
  long Position(unsigned message) { return Pane()->SendScintilla(message); }
  long SelectionStart() { return Position(QsciScintilla::SCI_GETSELECTIONSTART); }
  long SelectionEnd() { return Position(QsciScintilla::SCI_GETSELECTIONEND); }
  void DragTo(QPoint place, Qt::KeyboardModifiers keys) {
    QMouseEvent move(QEvent::MouseMove, place, Pane()->viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, keys);
    QApplication::sendEvent(Pane()->viewport(), &move);
  }
  QPoint PlaceOf(long position) {
    const auto at = static_cast<unsigned long>(position);
    return {static_cast<int>(Pane()->SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL,
                                                   static_cast<long>(at))),
            static_cast<int>(Pane()->SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0UL,
                                                   static_cast<long>(at))) +
                4};
  }
};

TEST_F(OutputPane, KeepsWhatItWasGivenByteForByte) {
  using namespace std::string_view_literals;
  Pane()->Append("one\n");
  Pane()->Append("two\0 with a NUL, \xC3\xBC and \t\r\n\n"sv);
  EXPECT_EQ(PaneText(), "one\ntwo\0 with a NUL, \xC3\xBC and \t\r\n\n"sv);
  Pane()->ReplaceText("group not found");
  EXPECT_EQ(PaneText(), "group not found");
  Pane()->Empty();
  EXPECT_EQ(PaneText(), "");
}

TEST_F(OutputPane, TakesNoTypedPastedOrCutText) {
  Start();
  Pane()->Append("report\n");
  QGuiApplication::clipboard()->setText(QStringLiteral("other"));
  Pane()->setFocus();
  QTest::keyClicks(Pane(), QStringLiteral("typed"));
  QTest::keyClick(Pane(), Qt::Key_Backspace);
  QTest::keyClick(Pane(), Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(Pane(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(Pane(), Qt::Key_X, Qt::ControlModifier);
  QTest::keyClick(Pane(), Qt::Key_Delete);
  EXPECT_EQ(PaneText(), "report\n");
}

TEST_F(OutputPane, IsCopiedByKeys) {
  Start();
  Pane()->Append("first\nsecond\n");
  Pane()->setFocus();
  QTest::keyClick(Pane(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(Pane(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("first\nsecond\n"));
}

TEST_F(OutputPane, ABlockOfColumnsIsSelectedWithAltAndWithCtrl) {
  Start();
  Pane()->Append("  001  aaa  x\n  002  bbb  y\n  003  ccc  z\n");
  QApplication::processEvents();
  for (const Qt::KeyboardModifier key : {Qt::AltModifier, Qt::ControlModifier}) {
    QWidget* view = Pane()->viewport();
    Pane()->SendScintilla(QsciScintilla::SCI_SETEMPTYSELECTION, 0UL);
    QTest::mousePress(view, Qt::LeftButton, key, PlaceOf(7));
    // Most of the many moves of a mouse are passed over, so that scrolling does not run away.
    constexpr int kMoves = 10;
    for (int i = 0; i < kMoves; ++i) DragTo(PlaceOf(28 + 10), key);
    QTest::mouseRelease(view, Qt::LeftButton, key, PlaceOf(28 + 10));
    EXPECT_TRUE(Pane()->SendScintilla(QsciScintilla::SCI_SELECTIONISRECTANGLE));
    Pane()->copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text().trimmed(), QStringLiteral("aaa\nbbb\nccc"));
    QTest::qWait(QApplication::doubleClickInterval());
  }
}

TEST_F(OutputPane, ABlockOfColumnsIsSelectedByKeys) {
  Start();
  Pane()->Append("  001  aaa  x\n  002  bbb  y\n  003  ccc  z\n");
  Pane()->setFocus();
  Pane()->setCursorPosition(0, 7);
  const auto keys = Qt::AltModifier | Qt::ShiftModifier;
  for (int i = 0; i < 3; ++i) QTest::keyClick(Pane(), Qt::Key_Right, keys);
  for (int i = 0; i < 2; ++i) QTest::keyClick(Pane(), Qt::Key_Down, keys);
  Pane()->copy();
  EXPECT_EQ(QGuiApplication::clipboard()->text().trimmed(), QStringLiteral("aaa\nbbb\nccc"));
}

TEST_F(OutputPane, PageDownAfterAReportMovesOnFromWhatIsSeen) {
  Start();
  std::string lines;
  for (int i = 0; i < 1000; ++i) lines += std::to_string(i) + "\n";
  Pane()->Append(lines);
  Pane()->setFocus();
  QTest::keyClick(Pane(), Qt::Key_PageDown);
  EXPECT_GT(Pane()->firstVisibleLine(), 0);
  EXPECT_LT(Pane()->firstVisibleLine(), 120);
  QTest::keyClick(Pane(), Qt::Key_End, Qt::ControlModifier);
  EXPECT_GT(Pane()->firstVisibleLine(), 900);
}

TEST_F(OutputPane, HasNoScrollBarsWhileItIsEmpty) {
  Start();
  QApplication::processEvents();
  EXPECT_FALSE(Pane()->horizontalScrollBar()->isVisible());
  EXPECT_EQ(Pane()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(OutputPane, LongLinesAreNotWrappedAndCanBeScrolledTo) {
  Start();
  Pane()->Append(std::string(300, 'x') + "\nshort\n");
  EXPECT_EQ(Pane()->wrapMode(), QsciScintilla::WrapNone);
  EXPECT_GT(Pane()->horizontalScrollBar()->maximum(), 0);
  Pane()->ReplaceText("short");
  EXPECT_EQ(Pane()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(OutputPane, ZoomsByKeys) {
  Start();
  Pane()->Append("text");
  const long size = Pane()->SendScintilla(QsciScintilla::SCI_TEXTHEIGHT, 0UL);
  Pane()->setFocus();
  QTest::keyClick(Pane(), Qt::Key_Plus, Qt::ControlModifier);
  QTest::keyClick(Pane(), Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_GT(Pane()->SendScintilla(QsciScintilla::SCI_TEXTHEIGHT, 0UL), size);
  QTest::keyClick(Pane(), Qt::Key_Minus, Qt::ControlModifier);
  QTest::keyClick(Pane(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Pane()->SendScintilla(QsciScintilla::SCI_TEXTHEIGHT, 0UL), size);
}

TEST_F(OutputPane, FollowsAChangeOfTheColours) {
  Start();
  const QPalette before = QApplication::palette();
  QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
  dark.setColor(QPalette::Base, QColor(20, 21, 22));
  dark.setColor(QPalette::Text, QColor(230, 231, 232));
  QApplication::setPalette(dark);
  QApplication::processEvents();
  const auto colour = [this](unsigned message) {
    const long bgr = Pane()->SendScintilla(message, long{QsciScintilla::STYLE_DEFAULT});
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                  static_cast<int>((bgr >> 16) & 0xFF));
  };
  EXPECT_EQ(colour(QsciScintilla::SCI_STYLEGETBACK), QColor(20, 21, 22));
  EXPECT_EQ(colour(QsciScintilla::SCI_STYLEGETFORE), QColor(230, 231, 232));
  QApplication::setPalette(before);
}

class Find : public OutputPane {
 protected:
  void StartWith(const char* text) {
    Start();
    Pane()->Append(text);
    Pane()->setFocus();
    QTest::keyClick(Pane(), Qt::Key_F, Qt::ControlModifier);
  }

  app::FindBar* Bar() { return Control<app::FindBar>("findBar"); }
  QLineEdit* Wanted() { return Box("txtFind"); }
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

}  // namespace
