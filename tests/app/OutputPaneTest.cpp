// SPDX-License-Identifier: GPL-3.0-or-later

// The pane as a reader uses it: keys, selection, zoom, colours.

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPalette>
#include <QScrollBar>
#include <QTest>

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
  Pane()->ShowText("group not found");
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
  Pane()->ShowText("short");
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

}  // namespace
