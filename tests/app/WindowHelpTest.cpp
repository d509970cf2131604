// SPDX-License-Identifier: GPL-3.0-or-later

// The menu of help: the manual in its window, the keys, and what the program is.

#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include "app/KeysWindow.h"
#include "app/ManualWindow.h"
#include "tests/app/WindowFixture.h"

namespace {

class WindowHelp : public tests::WindowTest {
 protected:
  static app::ManualWindow* Manual() {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (auto* manual = qobject_cast<app::ManualWindow*>(top)) return manual;
    }
    return nullptr;
  }
  app::ManualWindow* OpenManual() {
    PressKeysOf(Entry("mnuManual"));
    app::ManualWindow* manual = Manual();
    if (manual == nullptr || !QTest::qWaitForWindowActive(manual)) {
      throw std::runtime_error("no manual");
    }
    return manual;
  }
};

TEST_F(WindowHelp, F1OpensTheManualThatTheProgramCarries) {
  Start();
  app::ManualWindow* manual = OpenManual();
  const auto* text = manual->findChild<QTextBrowser*>();
  EXPECT_TRUE(text->toPlainText().startsWith(QStringLiteral("Manual")));
  EXPECT_TRUE(text->toPlainText().contains(QStringLiteral("step_length")));
  EXPECT_FALSE(text->accessibleName().isEmpty());
  EXPECT_TRUE(text->hasFocus());
  EXPECT_EQ(text->verticalScrollBar()->value(), 0) << "it begins at its beginning";
  QTest::keyClick(manual->focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(manual->isVisible());
  window_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  PressKeysOf(Entry("mnuManual"));
  EXPECT_TRUE(manual->isVisible()) << "the same window again";
}

TEST_F(WindowHelp, TheManualIsSearchedAndGoesOnFromTheOtherEnd) {
  Start();
  app::ManualWindow* manual = OpenManual();
  auto* text = manual->findChild<QTextBrowser*>();
  auto* find = manual->findChild<QLineEdit*>(QStringLiteral("txtManualFind"));
  const auto* result = manual->findChild<QLabel*>(QStringLiteral("lblManualResult"));
  QTest::keyClick(text, Qt::Key_F, Qt::ControlModifier);
  ASSERT_TRUE(find->hasFocus());
  QTest::keyClicks(find, QStringLiteral("further labels"));
  QTest::keyClick(find, Qt::Key_Return);
  const int first = text->textCursor().position();
  EXPECT_EQ(text->textCursor().selectedText().toLower(), QStringLiteral("further labels"));
  QTest::keyClick(find, Qt::Key_F3);
  EXPECT_GT(text->textCursor().position(), first);
  QTest::keyClick(find, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(text->textCursor().position(), first);
  QTest::keyClick(find, Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_GT(text->textCursor().position(), first) << "from the end";
  find->setText(QStringLiteral("no such words"));
  const int place = text->textCursor().position();
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(result->text(), QStringLiteral("not found"));
  EXPECT_EQ(text->textCursor().position(), place);
}

TEST_F(WindowHelp, EveryLinkWithinTheManualLeadsToItsHeading) {
  app::ManualWindow manual(app::ManualText(), nullptr);
  manual.show();
  auto* text = manual.findChild<QTextBrowser*>();
  int links = 0;
  for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QString link = part.fragment().charFormat().anchorHref();
      if (!link.startsWith(u'#')) continue;
      ++links;
      text->moveCursor(QTextCursor::Start);
      emit text->anchorClicked(QUrl(link));
      EXPECT_GT(text->textCursor().blockFormat().headingLevel(), 1) << link.toStdString();
    }
  }
  EXPECT_GE(links, 10);
}

TEST_F(WindowHelp, LinksLeadToOtherPagesOfTheManualAndBack) {
  app::ManualWindow manual(app::ManualText(), nullptr);
  manual.show();
  auto* text = manual.findChild<QTextBrowser*>();
  emit text->anchorClicked(QUrl(QStringLiteral("archive.md")));
  EXPECT_TRUE(text->toPlainText().startsWith(QStringLiteral("Whole archives")));
  EXPECT_EQ(text->verticalScrollBar()->value(), 0);
  emit text->anchorClicked(QUrl(QStringLiteral("manual.md#tables")));
  EXPECT_TRUE(text->toPlainText().startsWith(QStringLiteral("Manual")));
  EXPECT_EQ(text->textCursor().block().text(), QStringLiteral("Tables"));
}

TEST_F(WindowHelp, ClosingTheWindowClosesTheManual) {
  Start();
  app::ManualWindow* manual = OpenManual();
  window_.close();
  EXPECT_FALSE(manual->isVisible());
}

TEST_F(WindowHelp, TheKeysAreThoseOfTheEntries) {
  Start();
  int keys = 0;
  for (const QAction* action : window_.findChildren<QAction*>()) {
    keys += action->shortcuts().isEmpty() ? 0 : 1;
  }
  QStringList shown;
  boxes_.Expect([&shown](QDialog& box) {
    const auto* table = box.findChild<QTableWidget*>();
    for (int row = 0; row < table->rowCount(); ++row) {
      shown << table->item(row, 0)->text() + u'|' + table->item(row, 1)->text() + u'|' +
                   table->item(row, 2)->text();
    }
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  Choose("mnuKeys");
  EXPECT_EQ(shown.size(), keys);
  EXPECT_TRUE(shown.contains(QStringLiteral("Reports|Show All Groups & All Params|") +
                             Entry("cmdShowAllGroupsAndAllParams")->shortcut().toString()));
  EXPECT_TRUE(shown.contains(QStringLiteral("Help|Manual|F1")));
}

TEST_F(WindowHelp, AboutNamesVersionLicenceAndLibraries) {
  Start();
  boxes_.ExpectAndPress(Qt::Key_Return);
  ChooseByArrows(Entry("mnuAbout"));
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  const QString text = boxes_.Seen()[0].Text;
  const std::string tool = tests::ToolOutput({QStringLiteral("--version")});
  const std::string version = tool.substr(tool.find(' ') + 1, tool.find('\n') - tool.find(' ') - 1);
  EXPECT_TRUE(text.startsWith(QStringLiteral("Vantrel ") + QString::fromStdString(version)));
  EXPECT_TRUE(text.contains(QStringLiteral("GPL-3.0-or-later")));
  for (const QString& library :
       {QStringLiteral("Qt "), QStringLiteral("QScintilla 2."), QStringLiteral("fmt ")}) {
    EXPECT_TRUE(text.contains(u'\n' + library)) << library.toStdString();
  }
}

}  // namespace
