// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <regex>

#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/pages/PageTrials.h"
#include "tests/visit/VisitWalks.h"
#include "visit/NormalFile.h"

// Panels of moments and powers, whose units differ from model to model.
namespace {

using pages::CurvePanel;
using pages::PageKind;
using pages::Range;
using tests::PageOf;
using tests::PanelOf;
using tests::Standing;
using tests::TrialOfFourStrides;
using tests::ValuesOf;

// Hip moments and powers of the left side in those units; none is written where they are empty.
sample::TrialBuilder HipsAt(float moment, float power, const std::string& momentUnit = "",
                            const std::string& powerUnit = "") {
  sample::TrialBuilder builder = TrialOfFourStrides()
                                     .AddPoint("LHipMoment", Standing(moment, moment, moment))
                                     .AddPoint("LHipPower", Standing(0, 0, power));
  if (!momentUnit.empty()) {
    builder.SetParam("POINT", sample::TextParam("MOMENT_UNITS", momentUnit));
  }
  if (!powerUnit.empty()) builder.SetParam("POINT", sample::TextParam("POWER_UNITS", powerUnit));
  return builder;
}

CurvePanel PanelOfTrials(const std::vector<pages::TrialValues>& trials, std::string_view title,
                         const pages::PageChoice& choice = {}) {
  return PanelOf(PageOf(trials, PageKind::Kinetics, choice), title);
}

CurvePanel MomentOf(const sample::TrialBuilder& builder) {
  return PanelOfTrials({ValuesOf(builder)}, "Hip sagittal moment");
}

CurvePanel PowerOf(const sample::TrialBuilder& builder) {
  return PanelOfTrials({ValuesOf(builder)}, "Hip power");
}

TEST(KineticPanels, MomentsWithoutAUnitAreNewtonMillimetresPerKilogram) {
  const CurvePanel panel = MomentOf(HipsAt(1234.5F, 0));
  EXPECT_EQ(panel.Unit, "N·m/kg");
  EXPECT_EQ(panel.Curves.at(0).Values[0], static_cast<float>(1234.5 * 0.001));
  EXPECT_NEAR(panel.Means.at(0).Mean[0].value(), 1.2345, 1e-12);
  EXPECT_EQ(panel.Ordinate, (Range{-2, 3, 1, false}));
}

TEST(KineticPanels, DeviationsOfMomentsAreInTheUnitShown) {
  const CurvePanel panel =
      PanelOfTrials({ValuesOf(HipsAt(1000, 0)), ValuesOf(HipsAt(1600, 0))}, "Hip sagittal moment");
  EXPECT_NEAR(panel.Means.at(0).Mean[9].value(), 1.3, 1e-12);
  EXPECT_NEAR(panel.Means.at(0).Deviation[9].value(), std::sqrt(0.12), 1e-12);
}

TEST(KineticPanels, MomentsPerKilogramKeepTheirRange) {
  EXPECT_EQ(MomentOf(HipsAt(1000, 0, "N.mm/kg")).Ordinate, (Range{-2, 3, 1, false}));
  EXPECT_EQ(MomentOf(HipsAt(3100, 0, "Nmm/kg")).Ordinate, (Range{-2, 4, 1, true}));
}

TEST(KineticPanels, MomentsInNewtonMetresAreNotScaled) {
  const CurvePanel panel = MomentOf(HipsAt(1.5F, 0, "Nm/kg"));
  EXPECT_EQ(panel.Unit, "N·m/kg");
  EXPECT_EQ(panel.Curves.at(0).Values[0], 1.5F);
  EXPECT_EQ(panel.Means.at(0).Mean[0], 1.5);
}

TEST(KineticPanels, MomentsThatAreNotPerKilogramGetARangeFromTheData) {
  const CurvePanel panel = MomentOf(HipsAt(71000, 0, "Nmm"));
  EXPECT_EQ(panel.Unit, "N·m");
  EXPECT_EQ(panel.Curves.at(0).Values[0], 71);
  EXPECT_EQ(panel.Ordinate, (Range{0, 80, 20, true}));
}

TEST(KineticPanels, PowersFollowTheirUnit) {
  const CurvePanel missing = PowerOf(HipsAt(0, 2));
  EXPECT_EQ(missing.Unit, "W/kg");
  EXPECT_EQ(missing.Ordinate, (Range{-3, 3, 1, false}));
  const CurvePanel watts = PowerOf(HipsAt(0, -130, "", "W"));
  EXPECT_EQ(watts.Unit, "W");
  EXPECT_EQ(watts.Curves.at(0).Values[0], -130);
  EXPECT_EQ(watts.Ordinate, (Range{-150, 0, 50, true}));
}

TEST(KineticPanels, UnitIsThatOfTheFirstFileWithTheLabel) {
  const auto none = TrialOfFourStrides()
                        .AddPoint("LHEE", Standing(1, 1, 1))
                        .SetParam("POINT", sample::TextParam("POWER_UNITS", "W/kg"));
  const CurvePanel panel =
      PanelOfTrials({ValuesOf(none), ValuesOf(HipsAt(0, 90, "", "W"))}, "Hip power");
  EXPECT_EQ(panel.Unit, "W");
}

TEST(KineticPanels, EmptyPanelHasTheUnitThatTheFirstFileNames) {
  const auto trials = {ValuesOf(HipsAt(71000, 90, "Nmm", "W")), ValuesOf(HipsAt(1, 1))};
  const CurvePanel moment = PanelOfTrials(trials, "Ankle sagittal moment");
  EXPECT_TRUE(moment.Curves.empty());
  EXPECT_EQ(moment.Unit, "N·m");
  EXPECT_EQ(PanelOfTrials(trials, "Ankle power").Unit, "W");
  EXPECT_EQ(PanelOfTrials({ValuesOf(HipsAt(1, 1))}, "Ankle power").Unit, "W/kg");
  EXPECT_EQ(PanelOfTrials({}, "Ankle power").Unit, "W/kg");
}

TEST(KineticPanels, FilesInUnitsOfDifferentSizeAreShownInOne) {
  const CurvePanel panel = PanelOfTrials(
      {ValuesOf(HipsAt(1000, 0, "Nmm/kg"), "a.c3d"), ValuesOf(HipsAt(2, 0, "Nm/kg"), "b.c3d")},
      "Hip sagittal moment");
  EXPECT_EQ(panel.Curves.at(0).Values[0], 1);
  EXPECT_EQ(panel.Curves.at(2).Values[0], 2);
  EXPECT_EQ(panel.Means.at(0).Count, 4);
  EXPECT_NEAR(panel.Means.at(0).Mean[0].value(), 1.5, 1e-12);
  EXPECT_EQ(panel.Notes, std::vector<std::string>{"RHipMoment"}) << "they are the same quantity";
}

TEST(KineticPanels, FilesOfAnotherQuantityAreNamed) {
  const CurvePanel panel = PanelOfTrials(
      {ValuesOf(HipsAt(1000, 0, "Nmm/kg"), "a.c3d"), ValuesOf(HipsAt(2000, 0, "Nmm"), "b.c3d")},
      "Hip sagittal moment");
  ASSERT_EQ(panel.Notes.size(), 2U);
  EXPECT_EQ(panel.Notes[1], "In another unit: LHipMoment (b.c3d)");
}

TEST(KineticPanels, RangeWithoutDataIsTheFixedOne) {
  const CurvePanel panel = PanelOfTrials({ValuesOf(TrialOfFourStrides())}, "Ankle power");
  EXPECT_EQ(panel.Ordinate, (Range{-2, 5, 1, false}));
}

TEST(KineticPanels, NormalsOfMomentsAreShownInNewtonMetres) {
  const auto text = std::string(tests::kNormsHeading) +
                    tests::CsvOfCurve("HipMoment", "x", 500, 100) +
                    tests::CsvOfCurve("HipPower", "z", 2, 1);
  const auto normals = visit::NormalsOfText(text);
  pages::PageChoice choice;
  choice.Normals = std::get_if<visit::Normals>(&normals);
  ASSERT_NE(choice.Normals, nullptr);
  const pages::Page page = PageOf({ValuesOf(HipsAt(1, 1))}, PageKind::Kinetics, choice);
  const CurvePanel moment = PanelOf(page, "Hip sagittal moment");
  ASSERT_TRUE(moment.Normal);
  EXPECT_DOUBLE_EQ(moment.Normal->Mean[0].value(), 0.5);
  EXPECT_DOUBLE_EQ(moment.Normal->Deviation[0].value(), 0.1);
  EXPECT_EQ(PanelOf(page, "Hip power").Normal->Mean[0], 2);
}

// The mean of a normal hip moment of 500, in the unit that a table of norms names.
double NormalMomentIn(const std::string& unit) {
  const std::string rows = std::regex_replace(tests::CsvOfCurve("HipMoment", "x", 500, 100),
                                              std::regex(",deg\n"), "," + unit + "\n");
  const auto normals = visit::NormalsOfText(std::string(tests::kNormsHeading) + rows);
  pages::PageChoice choice;
  choice.Normals = std::get_if<visit::Normals>(&normals);
  EXPECT_NE(choice.Normals, nullptr);
  return PanelOfTrials({ValuesOf(HipsAt(1, 1))}, "Hip sagittal moment", choice)
      .Normal.value()
      .Mean[7]
      .value();
}

TEST(KineticPanels, NormalsAreInTheUnitOfTheirTable) {
  EXPECT_DOUBLE_EQ(NormalMomentIn("Nmm"), 0.5);
  EXPECT_DOUBLE_EQ(NormalMomentIn("N.mm/kg"), 0.5);
  EXPECT_DOUBLE_EQ(NormalMomentIn("Nm/kg"), 500);
  EXPECT_DOUBLE_EQ(NormalMomentIn("N.m"), 500);
}

TEST(KineticPanels, NormalsWithoutAUnitOfMomentsAreNewtonMillimetres) {
  EXPECT_DOUBLE_EQ(NormalMomentIn(""), 0.5);
  EXPECT_DOUBLE_EQ(NormalMomentIn("mm"), 0.5) << "of a trial that does not list its moments";
}

}  // namespace
