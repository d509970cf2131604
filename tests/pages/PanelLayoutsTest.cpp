// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "pages/PanelLayouts.h"

namespace {

using pages::PageKind;
using pages::PanelLayout;

// One line for a panel: its place, what it shows and its ordinate.
std::vector<std::string> LinesOf(PageKind kind) {
  std::vector<std::string> lines;
  for (const PanelLayout& panel : pages::PanelsOf(kind)) {
    lines.push_back(fmt::format("{} {} {}.{} {} {} {} {}/{}", panel.Row, panel.Column, panel.Label,
                                ComponentName(panel.Part), panel.Low, panel.High, panel.Tick,
                                panel.Down, panel.Up));
  }
  return lines;
}

TEST(PanelLayouts, KinematicsHasFourRowsOfThreeAngles) {
  const std::vector<std::string> expected = {
      "1 1 PelvisAngles.x 0 60 20 Post/Ant",        "1 2 PelvisAngles.y -30 30 15 Down/Up",
      "1 3 PelvisAngles.z -30 30 15 Back/Forw",     "2 1 HipAngles.x -20 80 20 Ext/Flex",
      "2 2 HipAngles.y -30 30 15 Abd/Add",          "2 3 HipAngles.z -30 30 15 Ext/Int",
      "3 1 KneeAngles.x -20 80 20 Ext/Flex",        "3 2 KneeAngles.y -30 30 15 Valg/Var",
      "3 3 KneeAngles.z -30 30 15 Ext/Int",         "4 1 AnkleAngles.x -30 30 15 Plant/Dors",
      "4 2 FootProgressAngles.z -30 30 15 Ext/Int", "4 3 AnkleAngles.z -30 30 15 Ext/Int"};
  EXPECT_EQ(LinesOf(PageKind::Kinematics), expected);
  EXPECT_EQ(LinesOf(PageKind::Variability), expected);
}

TEST(PanelLayouts, KineticsHasThreeRowsOfMomentsAndPower) {
  const std::vector<std::string> expected = {
      "1 1 HipMoment.x -2 3 1 Flex/Ext",         "1 2 HipMoment.y -2 1 0.5 Add/Abd",
      "1 3 HipMoment.z -0.5 0.5 0.25 Int/Ext",   "1 4 HipPower.z -3 3 1 Abs/Gen",
      "2 1 KneeMoment.x -1 1 0.5 Flex/Ext",      "2 2 KneeMoment.y -1 1 0.5 Var/Valg",
      "2 3 KneeMoment.z -0.5 0.5 0.25 Int/Ext",  "2 4 KneePower.z -3 3 1 Abs/Gen",
      "3 1 AnkleMoment.x -1 3 1 Dors/Plant",     "3 2 AnkleMoment.y -0.5 0.5 0.25 Add/Abd",
      "3 3 AnkleMoment.z -0.5 0.5 0.25 Int/Ext", "3 4 AnklePower.z -2 5 1 Abs/Gen"};
  EXPECT_EQ(LinesOf(PageKind::Kinetics), expected);
}

TEST(PanelLayouts, OtherPagesHaveNoPanelsOfCurves) {
  for (const PageKind kind : {PageKind::Measures, PageKind::Scores, PageKind::Label}) {
    EXPECT_TRUE(pages::PanelsOf(kind).empty());
  }
}

TEST(PanelLayouts, EndsOfEveryRangeLieOnTicks) {
  for (const PageKind kind : {PageKind::Kinematics, PageKind::Kinetics}) {
    for (const PanelLayout& panel : pages::PanelsOf(kind)) {
      EXPECT_EQ(std::fmod(panel.Low, panel.Tick), 0) << panel.Title;
      EXPECT_EQ(std::fmod(panel.High, panel.Tick), 0) << panel.Title;
    }
  }
}

TEST(PanelLayouts, TitleOfAnAngleIsThatOfItsPanel) {
  EXPECT_EQ(pages::TitleOfAngle("KneeAngles", modVantrel::Component::X), "Knee flexion");
  EXPECT_EQ(pages::TitleOfAngle("FootProgressAngles", modVantrel::Component::Z),
            "Foot progression");
  EXPECT_EQ(pages::TitleOfAngle("FootProgressAngles", modVantrel::Component::X), "");
}

}  // namespace
