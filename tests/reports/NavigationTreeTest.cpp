// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reports/NavigationTree.h"
#include "tests/TestTrials.h"

namespace {

using reports::TreeNode;
using sample::SectionSpec;
using sample::TrialBuilder;
using tests::Origin;
using tests::Silence;

using Texts = std::vector<std::string>;

Texts Names(const std::vector<TreeNode>& nodes) {
  Texts names;
  for (const TreeNode& node : nodes) names.push_back(node.Text);
  return names;
}

class NavigationTreeTest : public testing::Test {
 protected:
  void Given(const TrialBuilder& builder) {
    ASSERT_EQ(opener_.Open(builder), modVantrel::OpenResult::Success);
    tree_ = reports::FillTree(opener_.State());
  }

  // The first node of that text; one without children where there is none.
  static TreeNode Child(const std::vector<TreeNode>& nodes, const std::string& text) {
    for (const TreeNode& node : nodes) {
      if (node.Text == text) return node;
    }
    ADD_FAILURE() << "no node " << text;
    return {};
  }
  Texts Labels(const std::string& group, const std::string& param) const {
    return Names(Child(Child(tree_, group).Children, param).Children);
  }

  tests::TrialOpener opener_;
  std::vector<TreeNode> tree_;
};

TEST_F(NavigationTreeTest, GroupsAndParametersStandInTheOrderOfTheFile) {
  Given(TrialBuilder()
            .SetParam("ZEBRA", sample::IntegerParam("B", 1))
            .SetParam("ZEBRA", sample::IntegerParam("A", 1))
            .EditSection([](SectionSpec& section) { section.Group("EMPTY"); }));
  EXPECT_EQ(Names(tree_), (Texts{"POINT", "ANALOG", "ZEBRA", "EMPTY"}));
  EXPECT_EQ(Names(Child(tree_, "POINT").Children),
            (Texts{"USED", "SCALE", "RATE", "FRAMES", "LABELS"}));
  EXPECT_EQ(Names(Child(tree_, "ZEBRA").Children), (Texts{"B", "A"}));
  EXPECT_TRUE(Child(tree_, "EMPTY").Children.empty());
}

TEST_F(NavigationTreeTest, TheOrderOfTheRecordsDoesNotMatterForWhatBelongsToAGroup) {
  Given(TrialBuilder().Order(sample::RecordOrder::ParamsBeforeGroups));
  EXPECT_EQ(Names(tree_), (Texts{"POINT", "ANALOG"}));
  EXPECT_EQ(Names(Child(tree_, "POINT").Children),
            (Texts{"USED", "SCALE", "RATE", "FRAMES", "LABELS"}));
}

TEST_F(NavigationTreeTest, LabelsOfPointAndAnalogStandInStoredOrderEmptyAndDoubleOnesToo) {
  Given(TrialBuilder()
            .AddPoint("RTOE", Origin)
            .AddPoint("", Origin)
            .AddPoint("LTOE", Origin)
            .AddPoint("RTOE", Origin)
            .AddAnalog("FZ1", "force", Silence));
  EXPECT_EQ(Labels("POINT", "LABELS"), (Texts{"RTOE", "", "LTOE", "RTOE"}));
  EXPECT_EQ(Labels("ANALOG", "LABELS"), Texts{"FZ1"});
  EXPECT_EQ(Labels("ANALOG", "DESCRIPTIONS"), Texts{});
}

TEST_F(NavigationTreeTest, LabelsOfSeveralDimensionsRunFirstIndexFastest) {
  Given(TrialBuilder().SetParam("POINT",
                                {"LABELS", {1, 2, 2}, Texts{"a", "b", "c", "d"}, "", false, {}}));
  EXPECT_EQ(Labels("POINT", "LABELS"), (Texts{"a", "b", "c", "d"}));
}

TEST_F(NavigationTreeTest, LabelsKeepTheirPrefix) {
  Given(TrialBuilder()
            .AddPoint("S1:LTOE", Origin)
            .SetParam("SUBJECTS", sample::IntegerParam("USES_PREFIXES", 1))
            .SetParam("SUBJECTS", sample::TextListParam("LABEL_PREFIXES", {"S1:"})));
  EXPECT_EQ(Labels("POINT", "LABELS"), Texts{"S1:LTOE"});
  EXPECT_EQ(opener_.State().PointLabels[1], "LTOE");
}

TEST_F(NavigationTreeTest, AllLabelsOfTheFileAreThereWhateverTheHeaderCounts) {
  Given(TrialBuilder().SetParam("POINT", sample::TextListParam("LABELS", {"A", "B", "C"})));
  EXPECT_EQ(opener_.State().PointLabels.Count(), 1);
  EXPECT_EQ(Labels("POINT", "LABELS"), (Texts{"A", "B", "C"}));
}

TEST_F(NavigationTreeTest, LabelsStoredAsIntegersGetNoLabelNodes) {
  Given(TrialBuilder().SetParam("POINT", sample::IntegerListParam("LABELS", {1, 2})));
  EXPECT_EQ(Names(Child(tree_, "POINT").Children),
            (Texts{"USED", "SCALE", "RATE", "FRAMES", "LABELS"}));
  EXPECT_EQ(Labels("POINT", "LABELS"), Texts{});
}

TEST_F(NavigationTreeTest, LabelsWithADimensionOf0GetNoLabelNodes) {
  Given(TrialBuilder().SetParam("ANALOG", {"LABELS", {4, 0}, Texts{}, "", false, {}}));
  EXPECT_EQ(Labels("ANALOG", "LABELS"), Texts{});
}

TEST_F(NavigationTreeTest, TheNamesOfTheLabelParametersMatchInAnyCase) {
  Given(TrialBuilder().DropGroup("ANALOG").EditSection([](SectionSpec& section) {
    section.Groups.push_back(
        {"Analog", 30, "", false, {sample::TextListParam("Labels", {"FZ1", "FZ2"})}});
  }));
  EXPECT_EQ(Labels("Analog", "Labels"), (Texts{"FZ1", "FZ2"}));
}

TEST_F(NavigationTreeTest, TextsOfOtherGroupsAndParametersGetNoLabelNodes) {
  Given(TrialBuilder()
            .SetParam("POINTS", sample::TextListParam("LABELS", {"A"}))
            .SetParam("POINT", sample::TextListParam("LABELS2", {"B"})));
  EXPECT_EQ(Labels("POINTS", "LABELS"), Texts{});
  EXPECT_EQ(Labels("POINT", "LABELS2"), Texts{});
}

TEST_F(NavigationTreeTest, TwoGroupsOfOneNameAreTwoNodes) {
  Given(TrialBuilder().EditSection([](SectionSpec& section) {
    section.Groups.push_back({"POINT", 30, "", false, {sample::IntegerParam("OTHER", 1)}});
  }));
  EXPECT_EQ(Names(tree_), (Texts{"POINT", "ANALOG", "POINT"}));
  EXPECT_EQ(Names(tree_.back().Children), Texts{"OTHER"});
}

TEST_F(NavigationTreeTest, NamesAndLabelsOutsideAsciiAreUtf8) {
  Given(
      TrialBuilder().AddPoint("Fu\xDF", Origin).SetParam("\x80", sample::IntegerParam("\xE9", 1)));
  EXPECT_EQ(Labels("POINT", "LABELS"), Texts{"Fu\u00DF"});
  EXPECT_EQ(Names(Child(tree_, "\u20AC").Children), Texts{"\u00E9"});
}

TEST_F(NavigationTreeTest, AsTextEveryLevelIsTwoBlanksFurtherIn) {
  Given(TrialBuilder().DropGroup("ANALOG").DropParam("POINT", "RATE"));
  EXPECT_EQ(tests::TextOf([this](auto& output) { reports::ShowTree(opener_.State(), output); }),
            "POINT\n"
            "  USED\n"
            "  SCALE\n"
            "  FRAMES\n"
            "  LABELS\n"
            "    LTOE\n");
}

}  // namespace
