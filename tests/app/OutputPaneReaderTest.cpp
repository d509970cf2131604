// SPDX-License-Identifier: GPL-3.0-or-later

// What a screen reader gets to know of the pane.

#include <QAccessible>
#include <QTest>
#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "app/OutputPane.h"
#include "tests/app/FormFixture.h"

namespace {

class PaneReader : public tests::FormTest {
 protected:
  QAccessibleInterface* Read() { return QAccessible::queryAccessibleInterface(Pane()); }
  QAccessibleTextInterface* Text() { return Read()->textInterface(); }

  std::pair<QString, int> LineAt(int offset) {
    int start = 0;
    int end = 0;
    const QString line = Text()->textAtOffset(offset, QAccessible::LineBoundary, &start, &end);
    EXPECT_EQ(end - start, line.size());
    return {line, start};
  }
};

TEST_F(PaneReader, IsAReadOnlyTextOfSeveralLinesNamedOutput) {
  EXPECT_EQ(Read()->role(), QAccessible::EditableText);
  EXPECT_EQ(Read()->text(QAccessible::Name), QStringLiteral("Output"));
  EXPECT_TRUE(Read()->state().readOnly);
  EXPECT_TRUE(Read()->state().multiLine);
  EXPECT_EQ(Read()->editableTextInterface(), nullptr);
}

TEST_F(PaneReader, TheTextOfAReportIsReadWithItsCaretAtTheEnd) {
  Start(WriteSampleWalk());
  Click("cmdShowParameterHeader");
  const QString shown = QString::fromStdString(PaneText());
  EXPECT_EQ(Text()->characterCount(), shown.size());
  EXPECT_EQ(Text()->text(0, static_cast<int>(shown.size())), shown);
  EXPECT_EQ(Text()->cursorPosition(), shown.size());
}

TEST_F(PaneReader, LinesAreReadOneByOne) {
  Pane()->Append("one\ntwo words\n");
  EXPECT_EQ(LineAt(0), std::pair(QStringLiteral("one\n"), 0));
  EXPECT_EQ(LineAt(5), std::pair(QStringLiteral("two words\n"), 4));
  EXPECT_EQ(LineAt(-1), std::pair(QString(), 14));
  Text()->setCursorPosition(1);
  EXPECT_EQ(LineAt(-2), std::pair(QStringLiteral("one\n"), 0));
}

TEST_F(PaneReader, WordsAreReadOneByOne) {
  Pane()->Append("one\ntwo words\n");
  int start = 0;
  int end = 0;
  EXPECT_EQ(Text()->textAtOffset(9, QAccessible::WordBoundary, &start, &end),
            QStringLiteral("words"));
  EXPECT_EQ(start, 8);
  EXPECT_EQ(end, 13);
}

TEST_F(PaneReader, OffsetsCountCharactersAndNotBytes) {
  Pane()->Append("Z\xC3\xBCrich \xE2\x82\xAC\nnext\n");
  EXPECT_EQ(Text()->characterCount(), 14);
  EXPECT_EQ(Text()->text(1, 3), QStringLiteral("\u00FCr"));
  EXPECT_EQ(LineAt(10), std::pair(QStringLiteral("next\n"), 9));
  EXPECT_EQ(Text()->text(7, 100), QStringLiteral("\u20AC\nnext\n"));
  Pane()->ShowText("plain");
  EXPECT_EQ(Text()->characterCount(), 5);
}

TEST_F(PaneReader, ASelectionIsReadAndMade) {
  Pane()->Append("\xC3\xBC one two\n");
  EXPECT_EQ(Text()->selectionCount(), 0);
  Text()->setSelection(0, 2, 5);
  EXPECT_EQ(Pane()->selectedText(), QStringLiteral("one"));
  int start = 0;
  int end = 0;
  Text()->selection(0, &start, &end);
  EXPECT_EQ(Text()->selectionCount(), 1);
  EXPECT_EQ(start, 2);
  EXPECT_EQ(end, 5);
  Text()->removeSelection(0);
  EXPECT_EQ(Text()->selectionCount(), 0);
}

TEST_F(PaneReader, ACharacterIsFoundAtItsPlaceOnTheScreen) {
  Start();
  Pane()->Append("one\ntwo\n");
  QApplication::processEvents();
  const QRect place = Text()->characterRect(5);
  EXPECT_FALSE(place.isEmpty());
  EXPECT_EQ(Text()->offsetAtPoint(QPoint(place.left() + 1, place.center().y())), 5);
  EXPECT_EQ(Text()->offsetAtPoint(place.center() + QPoint(0, 300)), -1);
}

// Listens in place of a screen reader.
class PaneReaderEvents : public PaneReader {
 protected:
  void SetUp() override {
    Activate(true);
    before_ = QAccessible::installUpdateHandler(Note);
    Notes().clear();
  }
  void TearDown() override {
    QAccessible::installUpdateHandler(before_);
    Activate(false);
  }

  // The texts that came and went so far.
  static QStringList& Notes() {
    static QStringList notes;
    return notes;
  }

 private:
  static void Activate(bool active) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
  }

  static void Note(QAccessibleEvent* event) {
    if (const auto* inserted = dynamic_cast<QAccessibleTextInsertEvent*>(event)) {
      Notes()
          << QStringLiteral("+%1:%2").arg(inserted->changePosition()).arg(inserted->textInserted());
    }
    if (const auto* removed = dynamic_cast<QAccessibleTextRemoveEvent*>(event)) {
      Notes()
          << QStringLiteral("-%1:%2").arg(removed->changePosition()).arg(removed->textRemoved());
    }
  }

  QAccessible::UpdateHandler before_ = nullptr;
};

TEST_F(PaneReaderEvents, TellOfTextsThatComeAndGo) {
  Pane()->Append("\xC3\xBC\n");
  Pane()->Append("two\n");
  Pane()->ShowText("three");
  Pane()->Empty();
  EXPECT_EQ(Notes(), QStringList({QStringLiteral("+0:\u00FC\n"), QStringLiteral("+2:two\n"),
                                  QStringLiteral("-0:\u00FC\ntwo\n"), QStringLiteral("+0:three"),
                                  QStringLiteral("-0:three")}));
}

TEST_F(PaneReaderEvents, DoNotHandOverAListing) {
  const std::string listing(100'000, 'x');
  Pane()->Append(listing);
  Pane()->Empty();
  EXPECT_EQ(Notes(), QStringList());
  EXPECT_EQ(Text()->characterCount(), 0);
}

}  // namespace
