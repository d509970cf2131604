// SPDX-License-Identifier: GPL-3.0-or-later

// The navigation tree: what it holds, and what clicks on its nodes do.

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include "sample/TrialBuilder.h"
#include "tests/app/FormFixture.h"

namespace {

using sample::TrialBuilder;
using tests::FormTest;

QStringList Path(const char* group, const char* param = nullptr, const char* label = nullptr) {
  QStringList path;
  for (const char* part : {group, param, label}) {
    if (part != nullptr) path << QString::fromLatin1(part);
  }
  return path;
}

QStringList Texts(const char* group, const char* param, const char* point, const char* analog) {
  return {QString::fromLatin1(group), QString::fromLatin1(param), QString::fromLatin1(point),
          QString::fromLatin1(analog)};
}

void PrintNodes(const QTreeWidgetItem* node, int level, std::string& text) {
  for (int i = 0; i < node->childCount(); ++i) {
    text += std::string(2 * static_cast<std::size_t>(level), ' ') +
            node->child(i)->text(0).toStdString() + '\n';
    PrintNodes(node->child(i), level + 1, text);
  }
}

// The sample walk with its boxes filled, so that each test sees which ones a click changes.
class FormTree : public FormTest {
 protected:
  void StartWithSample() {
    Start(WriteSampleWalk());
    Type("txtGroup", QStringLiteral("g"));
    Type("txtParam", QStringLiteral("p"));
    Type("txtPointLabel", QStringLiteral("pl"));
    Type("txtAnalogLabel", QStringLiteral("al"));
  }

  // A trial whose label groups are not written in capitals.
  static sample::Trial SmallLetters() {
    return TrialBuilder()
        .AddAnalog("Fz1", "force", [](auto) { return 0.0F; })
        .EditSection([](sample::SectionSpec& section) {
          for (auto& group : section.Groups) {
            if (group.Name == "POINT") group.Name = "Point";
            if (group.Name == "ANALOG") group.Name = "analog";
          }
        })
        .Build();
  }
};

TEST_F(FormTree, HoldsWhatTheToolPrintsAsTheTree) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  std::string nodes;
  PrintNodes(Tree()->invisibleRootItem(), 0, nodes);
  EXPECT_EQ(nodes, tests::ToolOutput({QStringLiteral("tree"), QString::fromStdString(walk)}));
}

TEST_F(FormTree, DepthIsTheNumberOfAncestors) {
  Start(WriteSampleWalk());
  EXPECT_EQ(app::NodeDepth(Node(Path("POINT"))), 0);
  EXPECT_EQ(app::NodeDepth(Node(Path("POINT", "LABELS"))), 1);
  EXPECT_EQ(app::NodeDepth(Node(Path("POINT", "LABELS", "LTOE"))), 2);
}

TEST_F(FormTree, AGroupFillsTheGroupAndEmptiesTheParam) {
  StartWithSample();
  ClickNode(Path("SUBJECTS"));
  EXPECT_EQ(TextBoxes(), Texts("SUBJECTS", "", "pl", "al"));
}

TEST_F(FormTree, AParameterFillsItsGroupAndItself) {
  StartWithSample();
  ClickNode(Path("POINT", "SCALE"));
  EXPECT_EQ(TextBoxes(), Texts("POINT", "SCALE", "pl", "al"));
}

TEST_F(FormTree, APointLabelFillsThePointLabelOnly) {
  StartWithSample();
  ClickNode(Path("POINT", "LABELS", "RTOE"));
  EXPECT_EQ(TextBoxes(), Texts("g", "p", "RTOE", "al"));
}

TEST_F(FormTree, AnAnalogLabelFillsTheAnalogLabelOnly) {
  StartWithSample();
  ClickNode(Path("ANALOG", "LABELS", "Fz1"));
  EXPECT_EQ(TextBoxes(), Texts("g", "p", "pl", "Fz1"));
}

TEST_F(FormTree, LabelsUnderAGroupInSmallLettersFillNothing) {
  Start(SmallLetters());
  Type("txtPointLabel", QStringLiteral("pl"));
  ClickNode(Path("Point", "LABELS", "LTOE"));
  ClickNode(Path("analog", "LABELS", "Fz1"));
  EXPECT_EQ(TextBoxes(), Texts("", "", "pl", ""));
}

TEST_F(FormTree, ADoubleClickOnALabelUnderAGroupInSmallLettersShowsNothing) {
  Start(SmallLetters());
  Click("cmdShowParameterHeader");
  const std::string before = PaneText();
  DoubleClickNode(Path("Point", "LABELS", "LTOE"));
  DoubleClickNode(Path("analog", "LABELS", "Fz1"));
  EXPECT_EQ(PaneText(), before);
}

TEST_F(FormTree, ADoubleClickOnAGroupEmptiesTheParamAndShowsTheGroup) {
  StartWithSample();
  DoubleClickNode(Path("SUBJECTS"));
  EXPECT_EQ(TextBoxes(), Texts("SUBJECTS", "", "pl", "al"));
  EXPECT_TRUE(PaneText().starts_with("SUBJECTS\n  USED\n")) << PaneText();
}

TEST_F(FormTree, ADoubleClickOnAParameterShowsItsGroupAndItself) {
  StartWithSample();
  DoubleClickNode(Path("SUBJECTS", "USED"));
  EXPECT_EQ(TextBoxes(), Texts("SUBJECTS", "USED", "pl", "al"));
  EXPECT_EQ(PaneText(), "SUBJECTS\n  USED\n    int(1,1,1,1,1,1,1)            1\n");
}

TEST_F(FormTree, ADoubleClickOnAPointLabelShowsItsData) {
  StartWithSample();
  DoubleClickNode(Path("POINT", "LABELS", "RTOE"));
  EXPECT_EQ(TextBoxes(), Texts("g", "p", "RTOE", "al"));
  EXPECT_TRUE(PaneText().starts_with("Label: 'RTOE'\nAll point data for label (Number,"));
}

TEST_F(FormTree, ADoubleClickOnAnAnalogLabelShowsItsData) {
  StartWithSample();
  DoubleClickNode(Path("ANALOG", "LABELS", "Fz1"));
  EXPECT_EQ(TextBoxes(), Texts("g", "p", "pl", "Fz1"));
  EXPECT_TRUE(PaneText().starts_with("Label: 'Fz1'\nAll analog data for label"));
}

TEST_F(FormTree, AClickShowsNoReport) {
  StartWithSample();
  ClickNode(Path("POINT"));
  ClickNode(Path("POINT", "LABELS"));
  ClickNode(Path("POINT", "LABELS", "LTOE"));
  EXPECT_EQ(PaneText(), "");
}

TEST_F(FormTree, TheKeysDoWhatTheMouseDoes) {
  StartWithSample();
  ClickNode(Path("POINT"));
  QTest::keyClick(Tree(), Qt::Key_Down);
  EXPECT_EQ(TextBoxes().first(), Tree()->currentItem()->text(0));
  EXPECT_NE(TextBoxes().first(), QStringLiteral("POINT"));
  QTest::keyClick(Tree(), Qt::Key_Return);
  EXPECT_TRUE(PaneText().starts_with(TextBoxes().first().toStdString() + "\n"));
}

TEST_F(FormTree, GoingToTheTreeByTabChangesNoTextBox) {
  StartWithSample();
  CheckBox()->setFocus();
  QTest::keyClick(CheckBox(), Qt::Key_Tab);
  EXPECT_TRUE(Tree()->hasFocus());
  EXPECT_EQ(TextBoxes(), Texts("g", "p", "pl", "al"));
}

TEST_F(FormTree, EveryKeyThatHighlightsANodeClicksItAndTheOtherWayRound) {
  Start();
  for (const Qt::Key key :
       {Qt::Key_Space, Qt::Key_Return, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp, Qt::Key_End}) {
    Drop(WriteSampleWalk());
    Type("txtParam", QStringLiteral("p"));
    CheckBox()->setFocus();
    QTest::keyClick(CheckBox(), Qt::Key_Tab);
    ASSERT_TRUE(Tree()->hasFocus());
    QTest::keyClick(Tree(), key);
    EXPECT_EQ(Tree()->selectedItems(), QList<QTreeWidgetItem*>({Tree()->currentItem()})) << key;
    EXPECT_EQ(Box("txtGroup")->text(), Tree()->currentItem()->text(0)) << key;
    EXPECT_EQ(Box("txtParam")->text(), QString()) << key;
  }
}

TEST_F(FormTree, TheSpaceBarFillsTheBoxesAgainFromTheHighlightedNode) {
  StartWithSample();
  ClickNode(Path("POINT", "SCALE"));
  Type("txtGroup", QStringLiteral("g"));
  Tree()->setFocus();
  QTest::keyClick(Tree(), Qt::Key_Space);
  EXPECT_EQ(TextBoxes(), Texts("POINT", "SCALE", "pl", "al"));
}

TEST_F(FormTree, ANodeThatAScreenReaderHighlightsIsClicked) {
  StartWithSample();
  ClickNode(Path("SUBJECTS"));
  QAccessibleTableInterface* table =
      QAccessible::queryAccessibleInterface(Tree())->tableInterface();
  ASSERT_NE(table, nullptr);
  ASSERT_TRUE(table->selectRow(1));
  EXPECT_EQ(Tree()->selectedItems(), QList<QTreeWidgetItem*>({Tree()->topLevelItem(1)}));
  EXPECT_EQ(TextBoxes(), Texts("ANALOG", "", "pl", "al"));
  QTest::keyClick(Tree(), Qt::Key_Down);
  EXPECT_EQ(Box("txtGroup")->text(), Tree()->topLevelItem(2)->text(0));
}

TEST_F(FormTree, KeysInATreeWithoutNodesDoNothing) {
  Start();
  Tree()->setFocus();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Up, Qt::Key_Down}) {
    QTest::keyClick(Tree(), key);
  }
  EXPECT_EQ(TextBoxes(), Texts("", "", "", ""));
  EXPECT_EQ(PaneText(), "");
}

TEST_F(FormTree, PointLabelsStoredAsNumbersHaveNoLabelNodes) {
  Start(TrialBuilder().SetParam("POINT", sample::IntegerListParam("LABELS", {1, 2})).Build());
  EXPECT_EQ(Node(Path("POINT", "LABELS"))->childCount(), 0);
}

TEST_F(FormTree, PressingOnOneNodeAndReleasingOnAnotherClicksTheFirst) {
  StartWithSample();
  ClickNode(Path("POINT"));
  QWidget* view = Tree()->viewport();
  const QPoint first = Tree()->visualItemRect(Tree()->topLevelItem(1)).center();
  const QPoint second = Tree()->visualItemRect(Tree()->topLevelItem(2)).center();
  QTest::mousePress(view, Qt::LeftButton, {}, first);
  QMouseEvent move(QEvent::MouseMove, second, view->mapToGlobal(second), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view, &move);
  QTest::mouseRelease(view, Qt::LeftButton, {}, second);
  EXPECT_EQ(Tree()->currentItem(), Tree()->topLevelItem(1));
  EXPECT_EQ(Tree()->selectedItems(), QList<QTreeWidgetItem*>({Tree()->topLevelItem(1)}));
  EXPECT_EQ(Box("txtGroup")->text(), Tree()->topLevelItem(1)->text(0));
}

TEST_F(FormTree, AnotherButtonMovesNoHighlight) {
  StartWithSample();
  ClickNode(Path("POINT"));
  const QPoint place = Tree()->visualItemRect(Tree()->topLevelItem(1)).center();
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mouseClick(Tree()->viewport(), button, {}, place);
    EXPECT_EQ(Tree()->currentItem(), Tree()->topLevelItem(0));
    EXPECT_EQ(Box("txtGroup")->text(), QStringLiteral("POINT"));
  }
}

TEST_F(FormTree, ADoubleClickWithAnotherButtonRunsNothing) {
  StartWithSample();
  const QStringList before = TextBoxes();
  const QPoint place = Tree()->visualItemRect(Tree()->topLevelItem(0)).center();
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mouseClick(Tree()->viewport(), button, {}, place);
    QTest::mouseDClick(Tree()->viewport(), button, {}, place);
    QTest::mouseRelease(Tree()->viewport(), button, {}, place);
  }
  EXPECT_EQ(PaneText(), "");
  EXPECT_EQ(TextBoxes(), before);
}

TEST_F(FormTree, AClickOrDoubleClickBesideTheNodesChangesNothing) {
  StartWithSample();
  ClickNode(Path("SUBJECTS"));
  const QStringList before = TextBoxes();
  const QPoint beside(20, Tree()->viewport()->height() - 3);
  ASSERT_EQ(Tree()->itemAt(beside), nullptr);
  QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, beside);
  QTest::mouseDClick(Tree()->viewport(), Qt::LeftButton, {}, beside);
  EXPECT_EQ(Tree()->selectedItems(), QList<QTreeWidgetItem*>({Node(Path("SUBJECTS"))}));
  EXPECT_EQ(TextBoxes(), before);
  EXPECT_EQ(PaneText(), "");
}

TEST_F(FormTree, AClickWithCtrlHighlightsTheNodeWhoseNameStandsInTheBoxes) {
  StartWithSample();
  ClickNode(Path("SUBJECTS"));
  const QPoint place = Tree()->visualItemRect(Node(Path("SUBJECTS"))).center();
  QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, Qt::ControlModifier, place);
  EXPECT_EQ(Tree()->selectedItems(), QList<QTreeWidgetItem*>({Node(Path("SUBJECTS"))}));
  EXPECT_EQ(Box("txtGroup")->text(), QStringLiteral("SUBJECTS"));
}

}  // namespace
