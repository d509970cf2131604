// SPDX-License-Identifier: GPL-3.0-or-later

// The names that are proposed below the text boxes, and what Enter in a box runs.

#include <QAbstractItemView>
#include <QCompleter>
#include <QTest>

#include "tests/app/WindowFixture.h"

namespace {

class WindowCompletion : public tests::WindowTest {
 protected:
  QAbstractItemView* Popup(const char* box) { return Box(box)->completer()->popup(); }
  QStringList Proposed(const char* box) {
    QStringList names;
    if (!Popup(box)->isVisible()) return names;
    const QAbstractItemModel* model = Box(box)->completer()->completionModel();
    for (int row = 0; row < model->rowCount(); ++row) {
      names << model->index(row, 0).data().toString();
    }
    return names;
  }
  // The text of the report that a button shows for what the boxes hold.
  std::string ReportOf(const char* button) {
    Click(button);
    const std::string text = PaneText();
    Pane()->ShowText({});
    return text;
  }
  void Press(const char* box, Qt::Key key) {
    QTest::keyClick(Box(box), key);
    QApplication::processEvents();
  }
  // How often the pane was given a text.
  int Reports() const { return reports_; }
  void CountReports() {
    QObject::connect(&form_, &app::frmVantrel::ReportChanged, &form_, [this] {
      if (form_.Shown()) ++reports_;
    });
  }

 private:
  int reports_ = 0;
};

TEST_F(WindowCompletion, ProposesGroupsWithoutRegardToCase) {
  Start(WriteSampleWalk());
  Type("txtGroup", QStringLiteral("poi"));
  EXPECT_EQ(Proposed("txtGroup"), QStringList(QStringLiteral("POINT")));
}

TEST_F(WindowCompletion, ProposesTheParametersOfTheGroupThatIsNamed) {
  Start(WriteSampleWalk());
  Type("txtGroup", QStringLiteral("point"));
  Press("txtGroup", Qt::Key_Escape);
  Type("txtParam", QStringLiteral("lab"));
  EXPECT_EQ(Proposed("txtParam"), QStringList(QStringLiteral("LABELS")));
  Press("txtParam", Qt::Key_Escape);
  Type("txtGroup", QStringLiteral("nowhere"));
  Type("txtParam", QStringLiteral("lab"));
  EXPECT_EQ(Proposed("txtParam"), QStringList());
}

TEST_F(WindowCompletion, ProposesPointAndAnalogLabelsThatHoldWhatIsTyped) {
  Start(WriteSampleWalk());
  Type("txtPointLabel", QStringLiteral("kneeang"));
  EXPECT_EQ(Proposed("txtPointLabel"),
            QStringList({QStringLiteral("LKneeAngles"), QStringLiteral("RKneeAngles")}));
  Press("txtPointLabel", Qt::Key_Escape);
  Type("txtAnalogLabel", QStringLiteral("FZ1"));
  EXPECT_EQ(Proposed("txtAnalogLabel"), QStringList(QStringLiteral("Fz1")));
}

TEST_F(WindowCompletion, Of300LabelsWithOtherLettersFindsEachAndLeavesOutRepeatedAndEmptyOnes) {
  sample::TrialBuilder builder;
  const auto still = [](std::int32_t) { return std::array<float, 3>{}; };
  for (int i = 1; i <= 297; ++i) builder.AddPoint("M" + std::to_string(i), still);
  for (const char* label : {"\xD6"
                            "DEM",
                            "", "M1"})
    builder.AddPoint(label, still);
  Start(builder.Build());
  ASSERT_GE(state_.PointLabels.Count(), 300);
  Type("txtPointLabel", QStringLiteral("m25"));
  EXPECT_EQ(Proposed("txtPointLabel").first(), QStringLiteral("M25"));
  EXPECT_EQ(Proposed("txtPointLabel").count(QStringLiteral("M25")), 1);
  Press("txtPointLabel", Qt::Key_Escape);
  Type("txtPointLabel", QStringLiteral("M1"));
  EXPECT_EQ(Proposed("txtPointLabel").count(QStringLiteral("M1")), 1);
  EXPECT_FALSE(Proposed("txtPointLabel").contains(QString()));
}

TEST_F(WindowCompletion, ProposesLabelsWithLettersBeyondAsciiInEitherCase) {
  sample::TrialBuilder builder;
  builder.AddPoint(
      "\xD6"
      "dem",
      [](std::int32_t) { return std::array<float, 3>{}; });
  Start(builder.Build());
  Type("txtPointLabel", {});
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("\u00f6"));
  QApplication::sendEvent(Box("txtPointLabel"), &key);
  QTest::keyClicks(Box("txtPointLabel"), QStringLiteral("D"));
  EXPECT_EQ(Proposed("txtPointLabel"), QStringList(QStringLiteral("\u00d6dem")));
  Press("txtPointLabel", Qt::Key_Down);
  Press("txtPointLabel", Qt::Key_Return);
  EXPECT_EQ(Box("txtPointLabel")->text(), QStringLiteral("\u00d6dem"));
  EXPECT_FALSE(PaneText().empty());
}

TEST_F(WindowCompletion, WithoutAFileProposesNothing) {
  Start();
  for (const char* box : {"txtGroup", "txtParam", "txtPointLabel", "txtAnalogLabel"}) {
    Type(box, QStringLiteral("a"));
    EXPECT_EQ(Proposed(box), QStringList());
  }
}

TEST_F(WindowCompletion, ChangesNothingOfWhatIsTyped) {
  Start(WriteSampleWalk());
  Type("txtPointLabel", QStringLiteral("lToe"));
  EXPECT_EQ(Box("txtPointLabel")->text(), QStringLiteral("lToe"));
  Press("txtPointLabel", Qt::Key_Tab);
  EXPECT_FALSE(Popup("txtPointLabel")->isVisible());
  EXPECT_EQ(Box("txtPointLabel")->text(), QStringLiteral("lToe"));
  EXPECT_TRUE(Button("cmdShowPointLabels")->hasFocus()) << "Tab goes on as without proposals";
}

TEST_F(WindowCompletion, AClickInTheTreeFillsTheBoxesAndProposesNothing) {
  Start(WriteSampleWalk());
  ClickNode({QStringLiteral("POINT"), QStringLiteral("LABELS"), QStringLiteral("LTOE")});
  EXPECT_EQ(Box("txtPointLabel")->text(), QStringLiteral("LTOE"));
  EXPECT_FALSE(Popup("txtPointLabel")->isVisible());
}

TEST_F(WindowCompletion, EnterRunsTheReportOfTheBoxOnce) {
  Start(WriteSampleWalk());
  Type("txtGroup", QStringLiteral("POINT"));
  Type("txtParam", QStringLiteral("LABELS"));
  Type("txtPointLabel", QStringLiteral("LTOE"));
  Type("txtAnalogLabel", QStringLiteral("Fz1"));
  const std::vector<std::pair<const char*, const char*>> reports = {
      {"txtGroup", "cmdShowMatchingGroupAndAllParams"},
      {"txtParam", "cmdShowMatchingGroupAndMatchingParam"},
      {"txtPointLabel", "cmdShowPointData"},
      {"txtAnalogLabel", "cmdShowAnalogData"}};
  CountReports();
  for (const auto& [box, button] : reports) {
    const std::string expected = ReportOf(button);
    const int before = Reports();
    Box(box)->setFocus();
    Press(box, Qt::Key_Return);
    EXPECT_EQ(PaneText(), expected) << box;
    EXPECT_EQ(Reports(), before + 1) << box;
  }
}

TEST_F(WindowCompletion, EnterOnAProposalTakesItAndRunsItsReportOnce) {
  Start(WriteSampleWalk());
  Type("txtPointLabel", QStringLiteral("LTOE"));
  const std::string expected = ReportOf("cmdShowPointData");
  CountReports();
  Type("txtPointLabel", QStringLiteral("lto"));
  Press("txtPointLabel", Qt::Key_Down);
  Press("txtPointLabel", Qt::Key_Return);
  EXPECT_EQ(Box("txtPointLabel")->text(), QStringLiteral("LTOE"));
  EXPECT_FALSE(Popup("txtPointLabel")->isVisible());
  EXPECT_EQ(PaneText(), expected);
  EXPECT_EQ(Reports(), 1);
}

TEST_F(WindowCompletion, AClickOnAProposalTakesItAndEnterThenRunsOnce) {
  Start(WriteSampleWalk());
  CountReports();
  Type("txtPointLabel", QStringLiteral("lto"));
  QAbstractItemView* popup = Popup("txtPointLabel");
  ASSERT_TRUE(popup->isVisible());
  const QModelIndex first = Box("txtPointLabel")->completer()->completionModel()->index(0, 0);
  QTest::mouseClick(popup->viewport(), Qt::LeftButton, {}, popup->visualRect(first).center());
  EXPECT_EQ(Box("txtPointLabel")->text(), QStringLiteral("LTOE"));
  EXPECT_EQ(Reports(), 0);
  Press("txtPointLabel", Qt::Key_Return);
  EXPECT_EQ(Reports(), 1);
}

// Through the window system, which hands what is pressed beside a list to the list first.
TEST_F(WindowCompletion, AButtonThatIsClickedWhileProposalsAreShownIsPressed) {
  Start(WriteSampleWalk());
  Type("txtPointLabel", QStringLiteral("LTOE"));
  ASSERT_TRUE(Popup("txtPointLabel")->isVisible());
  const QPoint place = Button("cmdShowPointLabels")->rect().center();
  QTest::mouseClick(window_.windowHandle(), Qt::LeftButton, {},
                    Button("cmdShowPointLabels")->mapTo(&window_, place));
  // The window system hands the click over when it comes to it.
  EXPECT_TRUE(QTest::qWaitFor([this] { return !PaneText().empty(); }));
  EXPECT_FALSE(Popup("txtPointLabel")->isVisible());
}

TEST_F(WindowCompletion, ProposalsOfAnEarlierTrialGoWhenAnotherOneIsOpened) {
  Start(WriteSampleWalk());
  Type("txtPointLabel", QStringLiteral("L"));
  ASSERT_TRUE(Popup("txtPointLabel")->isVisible());
  form_.OpenFile(Write(SampleTrial(), "other.c3d"));
  EXPECT_FALSE(Popup("txtPointLabel")->isVisible());
}

TEST_F(WindowCompletion, EscapeClosesTheProposalsBeforeTheFindBar) {
  Start(WriteSampleWalk());
  form_.Find();
  Type("txtPointLabel", QStringLiteral("L"));
  ASSERT_TRUE(Popup("txtPointLabel")->isVisible());
  Press("txtPointLabel", Qt::Key_Escape);
  EXPECT_FALSE(Popup("txtPointLabel")->isVisible());
  EXPECT_TRUE(Box("txtPointLabel")->hasFocus());
  EXPECT_TRUE(Control<QWidget>("findBar")->isVisible());
  Press("txtPointLabel", Qt::Key_Escape);
  EXPECT_FALSE(Control<QWidget>("findBar")->isVisible());
}

TEST_F(WindowCompletion, EnterThatIsHeldDownRunsOnce) {
  Start(WriteSampleWalk());
  Type("txtPointLabel", QStringLiteral("LTOE"));
  Press("txtPointLabel", Qt::Key_Escape);
  CountReports();
  QTest::keyPress(Box("txtPointLabel"), Qt::Key_Return);
  for (int i = 0; i < 3; ++i) {
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QApplication::sendEvent(Box("txtPointLabel"), &again);
  }
  QApplication::processEvents();
  EXPECT_EQ(Reports(), 1);
}

TEST_F(WindowCompletion, EnterWithoutAFileIsRefusedAsByTheButton) {
  Start();
  Type("txtPointLabel", QStringLiteral("LTOE"));
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Press("txtPointLabel", Qt::Key_Return);
  ASSERT_EQ(boxes_.Seen().size(), 1U);
}

}  // namespace
