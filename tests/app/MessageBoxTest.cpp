// SPDX-License-Identifier: GPL-3.0-or-later

// The text of message boxes: exact for whoever reads it, on the screen however long it is.

#include <cstdlib>
#include <functional>
#include <stdexcept>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <gtest/gtest.h>

#include "app/MessageBoxes.h"
#include "app/modMsgBoxPlus.h"
#include "tests/app/Boxes.h"

namespace {

using tests::Boxes;

// A text with a path of at least that many letters.
QString TextWithPath(int length) {
  QString path;
  for (int i = 0; path.size() < length; ++i)
    path += QStringLiteral("/a_folder-of.some_length%1").arg(i);
  return QStringLiteral("The GCD file named '%1' already exists.  Overwrite it?").arg(path);
}

QTextEdit* ViewOf(QDialog& box) {
  auto* view = box.findChild<QTextEdit*>(QStringLiteral("lblMessage"));
  if (view == nullptr) throw std::out_of_range("lblMessage");
  return view;
}

// Shows `text` in a box, looks at it, and presses OK.
void Show(const QString& text, const std::function<void(QDialog&)>& look) {
  Boxes boxes;
  boxes.Expect([&](QDialog& box) {
    look(box);
    QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
  });
  app::ShowMessage(nullptr, text.toStdString());
}

// Every letter of the view's text lies within the part of it that is shown.
void ExpectEveryLetterIsShown(QTextEdit& view) {
  for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
      EXPECT_LE(block.layout()->lineAt(i).naturalTextWidth(), view.viewport()->width());
    }
  }
  EXPECT_LE(view.document()->size().height(), view.viewport()->height());
}

void ExpectFitsTheScreen(const QDialog& box) {
  const QSize screen = box.screen()->availableGeometry().size();
  EXPECT_LE(box.frameGeometry().width(), screen.width());
  EXPECT_LE(box.frameGeometry().height(), screen.height());
}

TEST(MessageBox, HoldsExactlyItsText) {
  for (const QString& text : {QStringLiteral("Short."), TextWithPath(300),
                              QStringLiteral("Run-time error '9':\n\nSubscript out of range")}) {
    Show(text, [&](QDialog& box) {
      EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), text);
      EXPECT_EQ(ViewOf(box)->toPlainText(), text);
    });
  }
}

TEST(MessageBox, WithCaptionsOfItsOwnHoldsExactlyItsTextToo) {
  const QString text = TextWithPath(300);
  Boxes boxes;
  boxes.ExpectAndClick(QStringLiteral("Yes"));
  modMsgBoxPlus::MsgBoxPlus(nullptr, modMsgBoxPlus::kYesNoCancel, QStringLiteral("Title"), text,
                            modMsgBoxPlus::kQuestionIcon, QStringLiteral("Yes"),
                            QStringLiteral("Yes to All"), QStringLiteral("Cancel"), 0);
  EXPECT_EQ(boxes.Seen().at(0).Text, text);
}

TEST(MessageBox, IsReadOutAsALabelOfExactlyItsText) {
  const QString text = TextWithPath(300);
  Show(text, [&](QDialog& box) {
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(ViewOf(box));
    EXPECT_EQ(reader->role(), QAccessible::StaticText);
    EXPECT_EQ(reader->text(QAccessible::Name), text);
  });
}

TEST(MessageBox, BreaksAPathThatIsTooLongForALine) {
  const QString text = TextWithPath(300);
  Show(text, [&](QDialog& box) {
    ExpectEveryLetterIsShown(*ViewOf(box));
    ExpectFitsTheScreen(box);
  });
}

TEST(MessageBox, IsNoHigherThanItsTextNeeds) {
  for (const QString& text : {QStringLiteral("Short."), TextWithPath(300), TextWithPath(800)}) {
    Show(text, [](QDialog& box) {
      const QTextEdit& view = *ViewOf(box);
      EXPECT_FALSE(view.verticalScrollBar()->isVisible());
      EXPECT_LE(view.height(), view.document()->size().height() + 2);
    });
  }
}

TEST(MessageBox, StandsInTheMiddleOfItsOwner) {
  QWidget owner;
  owner.resize(900, 450);
  owner.show();
  owner.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&owner));
  Boxes boxes;
  boxes.Expect([&](QDialog& box) {
    const QPoint apart = box.geometry().center() - owner.geometry().center();
    EXPECT_LE(std::abs(apart.x()), 20);
    EXPECT_LE(std::abs(apart.y()), 40) << "a title bar and its like";
    QTest::keyClick(&box, Qt::Key_Return);
  });
  app::ShowMessage(&owner, TextWithPath(300).toStdString());
}

TEST(MessageBox, ShowsAShortTextInOneLine) {
  Show(QStringLiteral("A C3D file is not open."), [](QDialog& box) {
    ExpectEveryLetterIsShown(*ViewOf(box));
    EXPECT_EQ(ViewOf(box)->document()->begin().layout()->lineCount(), 1);
  });
}

TEST(MessageBox, StaysOnTheScreenWithATextThatWouldNot) {
  Show(TextWithPath(20'000), [](QDialog& box) {
    ExpectFitsTheScreen(box);
    EXPECT_GT(ViewOf(box)->verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(ViewOf(box)->verticalScrollBar()->isVisible());
  });
}

TEST(MessageBox, IsCopiedWholeByKeys) {
  const QString text = TextWithPath(300);
  Show(text, [&](QDialog& box) {
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(box.focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), text);
  });
}

TEST(MessageBox, AWordOfItIsSelectedWithTheMouseAndCopied) {
  Show(QStringLiteral("toes"), [](QDialog& box) {
    QWidget* view = ViewOf(box)->viewport();
    QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(4, 6));
    QTest::keyClick(box.focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("toes")) << "nothing selected";
    QGuiApplication::clipboard()->clear();
    QTest::mouseDClick(view, Qt::LeftButton, {}, QPoint(4, 6));
    EXPECT_EQ(ViewOf(box)->textCursor().selectedText(), QStringLiteral("toes"));
    QTest::keyClick(box.focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("toes"));
  });
}

TEST(MessageBox, EnterAndEscapeWorkAfterAClickIntoTheText) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    Boxes boxes;
    boxes.Expect([key](QDialog& box) {
      QTest::mouseClick(ViewOf(box)->viewport(), Qt::LeftButton, {}, QPoint(4, 6));
      QTest::keyClick(box.focusWidget(), key);
    });
    app::ShowMessage(nullptr, "Text");
  }
}

TEST(MessageBox, TheKeysGoToTheButtonsAtFirst) {
  Show(QStringLiteral("Text"),
       [](QDialog& box) { EXPECT_NE(qobject_cast<QPushButton*>(box.focusWidget()), nullptr); });
}

}  // namespace
