// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <map>

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "app/modMsgBoxPlus.h"
#include "tests/app/Boxes.h"

namespace {

using tests::Boxes;

struct Case {
  const char* Name;
  int ButtonSet;
  const char16_t* Pressed;
  const char16_t* Answer;
};

void PrintTo(const Case& test, std::ostream* stream) { *stream << test.Name; }

QString Ask(int buttonSet, int timeoutMs = 0, int style = 0) {
  return modMsgBoxPlus::MsgBoxPlus(nullptr, buttonSet, QStringLiteral("Title"),
                                   QStringLiteral("Text"), style, QStringLiteral("One"),
                                   QStringLiteral("Two"), QStringLiteral("Three"), timeoutMs);
}

class MsgBoxPlusAnswer : public ::testing::TestWithParam<Case> {};

TEST_P(MsgBoxPlusAnswer, FollowsTheKindOfThePressedButton) {
  Boxes boxes;
  boxes.ExpectAndClick(QString::fromUtf16(GetParam().Pressed));
  EXPECT_EQ(Ask(GetParam().ButtonSet), QString::fromUtf16(GetParam().Answer));
}

INSTANTIATE_TEST_SUITE_P(
    EveryButtonOfEverySet, MsgBoxPlusAnswer,
    ::testing::Values(
        Case{"Ok", 0, u"One", u"One"}, Case{"OkCancelOk", 1, u"One", u"One"},
        Case{"OkCancelCancel", 1, u"Two", u"Two"}, Case{"AbortRetryIgnoreAbort", 2, u"One", u"One"},
        Case{"AbortRetryIgnoreRetry", 2, u"Two", u"Two"},
        Case{"AbortRetryIgnoreIgnore", 2, u"Three", u"Three"},
        Case{"YesNoCancelYes", 3, u"One", u"One"}, Case{"YesNoCancelNo", 3, u"Two", u"Two"},
        Case{"YesNoCancelCancel", 3, u"Three", u"Three"}, Case{"YesNoYes", 4, u"One", u"One"},
        Case{"YesNoNo", 4, u"Two", u"Two"},
        // Retry carries the first caption and answers the second.
        Case{"RetryCancelRetry", 5, u"One", u"Two"}, Case{"RetryCancelCancel", 5, u"Two", u"Two"}),
    [](const auto& test) { return std::string(test.param.Name); });

TEST(MsgBoxPlus, ShowsItsTitleItsTextAndTheCaptionsInOrder) {
  Boxes boxes;
  boxes.ExpectAndClick(QStringLiteral("Three"));
  Ask(modMsgBoxPlus::kYesNoCancel, 0, modMsgBoxPlus::kQuestionIcon);
  ASSERT_EQ(boxes.Seen().size(), 1U);
  EXPECT_EQ(boxes.Seen()[0].Title, QStringLiteral("Title"));
  EXPECT_EQ(boxes.Seen()[0].Text, QStringLiteral("Text"));
  EXPECT_EQ(boxes.Seen()[0].Icon, QMessageBox::Question);
  EXPECT_EQ(boxes.Seen()[0].Buttons,
            QStringList({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")}));
}

TEST(MsgBoxPlus, ClosedWithoutAButtonCountsAsEscape) {
  Boxes boxes;
  for (const auto& [set, answer] :
       {std::pair(modMsgBoxPlus::kOk, "One"), std::pair(modMsgBoxPlus::kOkCancel, "Two"),
        std::pair(modMsgBoxPlus::kYesNoCancel, "Three"),
        std::pair(modMsgBoxPlus::kRetryCancel, "Two")}) {
    boxes.Expect([](QDialog& dialog) { dialog.done(0); });
    EXPECT_EQ(Ask(set).toStdString(), answer) << "set " << set;
  }
}

TEST(MsgBoxPlus, ShowsTheButtonsOfEachSetAndNoMore) {
  const QStringList captions = {QStringLiteral("One"), QStringLiteral("Two"),
                                QStringLiteral("Three")};
  constexpr std::array kCounts = {1, 2, 3, 3, 2, 2};
  for (int set = 0; set <= 5; ++set) {
    Boxes boxes;
    boxes.ExpectAndClick(QStringLiteral("One"));
    Ask(set);
    EXPECT_EQ(boxes.Seen().at(0).Buttons, captions.first(kCounts.at(static_cast<std::size_t>(set))))
        << "set " << set;
  }
}

TEST(MsgBoxPlus, ShowsTheIconOfItsStyle) {
  const std::map<int, QMessageBox::Icon> icons = {{0, QMessageBox::NoIcon},
                                                  {16, QMessageBox::Critical},
                                                  {32, QMessageBox::Question},
                                                  {48, QMessageBox::Warning},
                                                  {64, QMessageBox::Information}};
  for (const auto& [style, icon] : icons) {
    Boxes boxes;
    boxes.ExpectAndClick(QStringLiteral("One"));
    Ask(modMsgBoxPlus::kOk, 0, style);
    EXPECT_EQ(boxes.Seen().at(0).Icon, icon) << "style " << style;
  }
}

TEST(MsgBoxPlus, TakesTextAsItStandsAndNotAsMarkup) {
  Boxes boxes;
  boxes.Expect([&](QDialog& box) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  modMsgBoxPlus::MsgBoxPlus(nullptr, 0, {}, QStringLiteral("<b>walk</b>.gcd"), 0,
                            QStringLiteral("One"), {}, {}, 0);
}

TEST(MsgBoxPlus, EnterPressesTheFirstButtonUnlessTheStyleNamesAnother) {
  const std::map<int, const char16_t*> cases = {{0, u"One"}, {256, u"Two"}, {512, u"Three"}};
  for (const auto& [style, answer] : cases) {
    Boxes boxes;
    boxes.Expect([](QDialog& box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); });
    EXPECT_EQ(Ask(modMsgBoxPlus::kYesNoCancel, 0, style), QString::fromUtf16(answer));
  }
}

struct ClosingCase {
  int ButtonSet;
  const char16_t* Answer;
};

void PrintTo(const ClosingCase& test, std::ostream* stream) { *stream << "set " << test.ButtonSet; }

class MsgBoxPlusClosing : public ::testing::TestWithParam<ClosingCase> {};

TEST_P(MsgBoxPlusClosing, ByEscapeCountsAsCancel) {
  Boxes boxes;
  boxes.ExpectAndPress(Qt::Key_Escape);
  EXPECT_EQ(Ask(GetParam().ButtonSet), QString::fromUtf16(GetParam().Answer));
}

TEST_P(MsgBoxPlusClosing, ByTheCloseBoxCountsAsCancel) {
  Boxes boxes;
  boxes.Expect([](QDialog& box) { box.close(); });
  EXPECT_EQ(Ask(GetParam().ButtonSet), QString::fromUtf16(GetParam().Answer));
}

INSTANTIATE_TEST_SUITE_P(EverySetThatCanBeClosed, MsgBoxPlusClosing,
                         ::testing::Values(ClosingCase{0, u"One"}, ClosingCase{1, u"Two"},
                                           ClosingCase{3, u"Three"}, ClosingCase{5, u"Two"}),
                         [](const auto& test) {
                           return "Set" + std::to_string(test.param.ButtonSet);
                         });

TEST(MsgBoxPlus, SetsWithoutCancelCannotBeClosed) {
  for (const int set : {modMsgBoxPlus::kAbortRetryIgnore, modMsgBoxPlus::kYesNo}) {
    Boxes boxes;
    boxes.Expect([](QDialog& box) {
      QTest::keyClick(&box, Qt::Key_Escape);
      EXPECT_TRUE(box.isVisible());
      box.close();
      EXPECT_TRUE(box.isVisible());
      EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowCloseButtonHint));
      QTest::mouseClick(box.findChildren<QPushButton*>().last(), Qt::LeftButton);
    });
    EXPECT_FALSE(Ask(set).isEmpty());
  }
}

TEST(MsgBoxPlus, NobodyAnswersWithinTheTimeOutAnswersTimedOut) {
  for (const int set : {0, 1, 3, 5}) {
    Boxes boxes;
    boxes.Expect([](QDialog&) {});
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(Ask(set, 150), QStringLiteral("TimedOut")) << "set " << set;
    EXPECT_GE(clock.elapsed(), 150);
  }
}

TEST(MsgBoxPlus, AnAnswerWithinTheTimeOutCounts) {
  Boxes boxes;
  boxes.ExpectAndClick(QStringLiteral("One"));
  EXPECT_EQ(Ask(modMsgBoxPlus::kOkCancel, 5000), QStringLiteral("One"));
}

TEST(MsgBoxPlus, TheTimeOutIsForgottenForTheNextBox) {
  Boxes boxes;
  boxes.Expect([](QDialog&) {});
  Ask(modMsgBoxPlus::kOkCancel, 50);
  boxes.ExpectAndClick(QStringLiteral("Two"));
  EXPECT_EQ(Ask(modMsgBoxPlus::kOkCancel), QStringLiteral("Two"));
}

TEST(MsgBoxPlus, SetsWithoutCancelIgnoreTheTimeOut) {
  for (const int set : {modMsgBoxPlus::kAbortRetryIgnore, modMsgBoxPlus::kYesNo}) {
    Boxes boxes;
    boxes.Expect([](QDialog& box) {
      QTest::qWait(200);
      EXPECT_TRUE(box.isVisible());
      QTest::mouseClick(box.findChildren<QPushButton*>().first(), Qt::LeftButton);
    });
    EXPECT_NE(Ask(set, 50), QStringLiteral("TimedOut")) << "set " << set;
  }
}

TEST(MsgBoxPlus, AnUnknownSetShowsAPlainOk) {
  for (const int set : {6, 15, -1}) {
    Boxes boxes;
    boxes.ExpectAndClick(QStringLiteral("OK"));
    EXPECT_EQ(Ask(set), QStringLiteral("One")) << "set " << set;
  }
}

TEST(MsgBoxPlus, RetryCancelWithAgainAndStopAlwaysAnswersStop) {
  for (const auto& pressed : {QStringLiteral("Again"), QStringLiteral("Stop")}) {
    Boxes boxes;
    boxes.ExpectAndClick(pressed);
    EXPECT_EQ(modMsgBoxPlus::MsgBoxPlus(nullptr, modMsgBoxPlus::kRetryCancel, {}, {}, 0,
                                        QStringLiteral("Again"), QStringLiteral("Stop"), {}, 0),
              QStringLiteral("Stop"));
  }
}

}  // namespace
