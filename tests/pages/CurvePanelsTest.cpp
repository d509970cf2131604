// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/pages/PageTrials.h"
#include "tests/visit/VisitWalks.h"
#include "visit/NormalFile.h"

namespace {

using modVantrel::GaitSide;
using pages::CurvePanel;
using pages::PageKind;
using pages::Range;
using pages::StrideId;
using tests::CurvesOf;
using tests::MissingOf;
using tests::PageOf;
using tests::PanelOf;
using tests::Standing;
using tests::Step;
using tests::TrialOfFourStrides;
using tests::ValuesOf;

using Strings = std::vector<std::string>;

// Knee angles of both sides, each of its own.
sample::TrialBuilder KneesAt(float left, float right) {
  return TrialOfFourStrides()
      .AddPoint("LKneeAngles", Standing(left, left, left))
      .AddPoint("RKneeAngles", Standing(right, right, right));
}

CurvePanel KneeOf(const std::vector<pages::TrialValues>& trials, pages::PageChoice choice = {}) {
  return PanelOf(PageOf(trials, PageKind::Kinematics, std::move(choice)), "Knee flexion");
}

CurvePanel KneeOf(const sample::TrialBuilder& builder) { return KneeOf({ValuesOf(builder)}); }

TEST(CurvePanels, CurvesStandLeftThenRightByFileAndStride) {
  const auto first = ValuesOf(KneesAt(10, 20), "a.c3d");
  const auto second = ValuesOf(KneesAt(30, 40), "b.c3d");
  const CurvePanel panel = KneeOf({first, second});
  std::vector<StrideId> ids;
  std::vector<float> values;
  for (const pages::Curve& curve : panel.Curves) {
    ids.push_back(curve.Id);
    values.push_back(curve.Values[25].value());
  }
  constexpr auto kLeft = GaitSide::Left;
  constexpr auto kRight = GaitSide::Right;
  EXPECT_EQ(ids, (std::vector<StrideId>{{0, kLeft, 1},
                                        {0, kLeft, 2},
                                        {1, kLeft, 1},
                                        {1, kLeft, 2},
                                        {0, kRight, 1},
                                        {0, kRight, 2},
                                        {1, kRight, 1},
                                        {1, kRight, 2}}));
  EXPECT_EQ(values, (std::vector<float>{10, 10, 30, 30, 20, 20, 40, 40}));
}

TEST(CurvePanels, CurveGoesFromStrikeToStrike) {
  const CurvePanel panel =
      KneeOf(TrialOfFourStrides().AddPoint("LKneeAngles", tests::Moving({0, 0, 0}, {0.5F, 1, 2})));
  ASSERT_EQ(panel.Curves.size(), 2U);
  EXPECT_NEAR(panel.Curves[0].Values[0].value(), 5.5, 1e-5);
  EXPECT_NEAR(panel.Curves[0].Values[50].value(), 30.5, 1e-5);
  EXPECT_NEAR(panel.Curves[1].Values[0].value(), 30.5, 1e-5);
}

TEST(CurvePanels, MeansAndDeviationsAreThoseOfASidesStrides) {
  const CurvePanel panel = KneeOf({ValuesOf(KneesAt(10, 20)), ValuesOf(KneesAt(16, 20))});
  ASSERT_EQ(panel.Means.size(), 2U);
  EXPECT_EQ(panel.Means[0].Side, GaitSide::Left);
  EXPECT_EQ(panel.Means[0].Count, 4);
  EXPECT_NEAR(panel.Means[0].Mean[30].value(), 13, 1e-9);
  EXPECT_NEAR(panel.Means[0].Deviation[30].value(), std::sqrt(12.0), 1e-9) << "10 10 16 16";
  EXPECT_EQ(panel.Means[1].Side, GaitSide::Right);
  EXPECT_NEAR(panel.Means[1].Mean[0].value(), 20, 1e-9);
  EXPECT_NEAR(panel.Means[1].Deviation[50].value(), 0, 1e-9);
}

TEST(CurvePanels, SingleStrideHasAMeanAndNoDeviation) {
  const CurvePanel panel =
      KneeOf(tests::TrialOfOneStride("Left").AddPoint("LKneeAngles", Standing(10, 10, 10)));
  ASSERT_EQ(panel.Means.size(), 1U);
  EXPECT_EQ(panel.Means[0].Count, 1);
  EXPECT_NEAR(panel.Means[0].Mean[0].value(), 10, 1e-9);
  EXPECT_FALSE(panel.Means[0].Deviation[0]);
}

TEST(CurvePanels, GapInsideAStrideIsMissingAndKeepsItFromTheMean) {
  const CurvePanel panel = KneeOf(KneesAt(10, 20)
                                      .NotSeen(1, tests::kFirstLeftFrame + 20)
                                      .NotSeen(1, tests::kFirstLeftFrame + 21));
  const auto left = CurvesOf(panel, GaitSide::Left);
  ASSERT_EQ(left.size(), 2U);
  EXPECT_EQ(MissingOf(left[0].Values), (std::vector<std::size_t>{20, 21}));
  EXPECT_TRUE(MissingOf(left[1].Values).empty());
  ASSERT_EQ(panel.Means.size(), 2U);
  EXPECT_EQ(panel.Means[0].Count, 1);
  EXPECT_EQ(panel.Means[1].Count, 2) << "the other side has no gap";
  EXPECT_TRUE(panel.Notes.empty()) << "a gap is seen in the line itself";
}

TEST(CurvePanels, SideWithGapsInEveryStrideHasCurvesAndNoMean) {
  const CurvePanel panel = KneeOf(KneesAt(10, 20)
                                      .NotSeen(1, tests::kFirstLeftFrame + 20)
                                      .NotSeen(1, tests::kSecondLeftFrame + 20));
  EXPECT_EQ(CurvesOf(panel, GaitSide::Left).size(), 2U);
  ASSERT_EQ(panel.Means.size(), 1U);
  EXPECT_EQ(panel.Means[0].Side, GaitSide::Right);
}

TEST(CurvePanels, NotANumberAnywhereLeavesNoCurveAndANote) {
  const float none = std::numeric_limits<float>::quiet_NaN();
  const CurvePanel panel = KneeOf(TrialOfFourStrides()
                                      .AddPoint("LKneeAngles", Step(10, 161, none))
                                      .AddPoint("RKneeAngles", Standing(20, 20, 20)));
  for (const pages::Curve& curve : CurvesOf(panel, GaitSide::Left)) {
    EXPECT_EQ(MissingOf(curve.Values).size(), visit::kInstants);
  }
  EXPECT_EQ(panel.Notes, Strings{"Values that are no numbers: LKneeAngles"});
  ASSERT_EQ(panel.Means.size(), 2U);
  EXPECT_EQ(panel.Means[0].Count, 2) << "it is seen in all of both strides";
  EXPECT_FALSE(panel.Means[0].Mean[0]);
  EXPECT_EQ(panel.Ordinate, (Range{-20, 80, 20, false}));
}

TEST(CurvePanels, InfiniteValuesAreMissingAndNoted) {
  const float infinite = std::numeric_limits<float>::infinity();
  const CurvePanel panel = KneeOf(TrialOfFourStrides()
                                      .AddPoint("LKneeAngles", Step(10, 80, infinite))
                                      .AddPoint("RKneeAngles", Standing(20, 20, 20)));
  for (const pages::Curve& curve : panel.Curves) {
    for (const auto& value : curve.Values) EXPECT_TRUE(!value || std::isfinite(*value));
  }
  EXPECT_FALSE(MissingOf(CurvesOf(panel, GaitSide::Left).at(1).Values).empty());
  EXPECT_EQ(panel.Notes, Strings{"Values that are no numbers: LKneeAngles"});
  EXPECT_EQ(panel.Ordinate, (Range{-20, 80, 20, false}));
}

TEST(CurvePanels, LabelThatNoFileHasLeavesItsNameAlone) {
  const CurvePanel panel = KneeOf(TrialOfFourStrides().AddPoint("LKNE", Standing(1, 2, 3)));
  EXPECT_TRUE(panel.Curves.empty());
  EXPECT_TRUE(panel.Means.empty());
  EXPECT_TRUE(panel.Marks.empty());
  EXPECT_EQ(panel.Notes, Strings{"LKneeAngles, RKneeAngles"});
  EXPECT_EQ(panel.Ordinate, (Range{-20, 80, 20, false}));
}

TEST(CurvePanels, LabelThatIsLackingOnOneSideIsNamed) {
  const CurvePanel panel =
      KneeOf(TrialOfFourStrides().AddPoint("LKneeAngles", Standing(10, 10, 10)));
  EXPECT_EQ(panel.Curves.size(), 2U);
  EXPECT_EQ(panel.Notes, Strings{"RKneeAngles"});
  EXPECT_EQ(panel.Marks.size(), 3U);
}

TEST(CurvePanels, LabelThatSomeFilesLackIsNamedWithThem) {
  const auto whole = ValuesOf(KneesAt(10, 20), "a.c3d");
  const auto left = TrialOfFourStrides().AddPoint("LKneeAngles", Standing(10, 10, 10));
  const CurvePanel one = KneeOf({whole, ValuesOf(left, "folder/b.c3d")});
  EXPECT_EQ(one.Notes, Strings{"RKneeAngles (b.c3d)"});
  EXPECT_EQ(one.Means.at(1).Count, 2);
  const CurvePanel two = KneeOf({whole, ValuesOf(left, "b.c3d"), ValuesOf(left, "c.c3d")});
  EXPECT_EQ(two.Notes, Strings{"RKneeAngles (2 of 3 files)"});
}

TEST(CurvePanels, RangeIsWidenedForAStrideThatLeavesIt) {
  EXPECT_EQ(KneeOf(KneesAt(80, -20)).Ordinate, (Range{-20, 80, 20, false})) << "at its ends";
  EXPECT_EQ(KneeOf(KneesAt(81, 0)).Ordinate, (Range{-20, 100, 20, true}));
  EXPECT_EQ(KneeOf(KneesAt(0, -50)).Ordinate, (Range{-60, 80, 20, true}));
}

TEST(CurvePanels, RangeIsWidenedForOneStrideThoughTheMeanStaysInIt) {
  const CurvePanel panel = KneeOf({ValuesOf(KneesAt(70, 0)), ValuesOf(KneesAt(85, 0))});
  EXPECT_LT(panel.Means.at(0).Mean[0].value(), 80);
  EXPECT_EQ(panel.Ordinate, (Range{-20, 100, 20, true}));
}

TEST(CurvePanels, StridesThatAreLeftOutCountNowhere) {
  pages::PageChoice choice;
  choice.LeftOut = {{1, GaitSide::Left, 1}, {1, GaitSide::Left, 2}};
  const std::vector<pages::TrialValues> trials = {ValuesOf(KneesAt(10, 20)),
                                                  ValuesOf(KneesAt(90, 20))};
  const CurvePanel panel = KneeOf(trials, choice);
  EXPECT_EQ(CurvesOf(panel, GaitSide::Left).size(), 2U);
  EXPECT_EQ(CurvesOf(panel, GaitSide::Right).size(), 4U);
  EXPECT_EQ(panel.Means.at(0).Count, 2);
  EXPECT_NEAR(panel.Means.at(0).Mean[0].value(), 10, 1e-9);
  EXPECT_EQ(panel.Ordinate, (Range{-20, 80, 20, false}));
  choice.Kinds = {};
  const pages::PageSet set = pages::MakePages(trials, choice);
  EXPECT_EQ(set.LeftStrides, 2);
  EXPECT_EQ(set.RightStrides, 4);
}

// Four whole strides, and a third left one whose closing strike lies behind the trial.
sample::TrialBuilder TrialWithIncompleteStride() {
  return KneesAt(10, 20).AddEvent("Left", "Foot Strike", 165.0F / 64);
}

TEST(CurvePanels, IncompleteStrideIsDrawnAndEntersNoMeanAndNoMark) {
  auto values = ValuesOf(TrialWithIncompleteStride());
  ASSERT_EQ(values.Strides.size(), 5U);
  const auto incomplete = std::ranges::find(values.Strides, false, &pages::TrialStride::IsComplete);
  ASSERT_NE(incomplete, values.Strides.end());
  incomplete->FootOff = 90;  // where its mark would be seen in the mean
  const CurvePanel panel = KneeOf({values});
  EXPECT_EQ(CurvesOf(panel, GaitSide::Left).size(), 3U);
  EXPECT_EQ(panel.Means.at(0).Count, 2);
  EXPECT_NEAR(panel.Marks.at(0).Percent, 60, 1e-9);
}

TEST(CurvePanels, MarksStandAtTheMeanOfEachSide) {
  // The foot off of the second file's left strides is at 66 %, the other marks stay.
  sample::TrialBuilder later;
  later.StoredAs(sample::Storage::Single).Frames(1, 81).Rate(64);
  tests::AddStrideEvents(later, "Left",
                         {16.0F / 64, 21.0F / 64, 41.0F / 64, 49.0F / 64, 66.0F / 64});
  later.AddPoint("LKneeAngles", Standing(10, 10, 10));
  const CurvePanel panel = KneeOf({ValuesOf(KneesAt(10, 20)), ValuesOf(later)});
  ASSERT_EQ(panel.Marks.size(), 6U);
  const auto& off = panel.Marks[0];
  EXPECT_EQ(off.Side, GaitSide::Left);
  EXPECT_EQ(off.Kind, pages::MarkKind::FootOff);
  EXPECT_NEAR(off.Percent, (60 + 60 + 66) / 3.0, 1e-9);
  EXPECT_EQ(panel.Marks[1].Kind, pages::MarkKind::OppositeFootOff);
  EXPECT_NEAR(panel.Marks[1].Percent, 10, 1e-9);
  EXPECT_EQ(panel.Marks[2].Kind, pages::MarkKind::OppositeFootStrike);
  EXPECT_NEAR(panel.Marks[2].Percent, 50, 1e-9);
  EXPECT_EQ(panel.Marks[3].Side, GaitSide::Right);
  EXPECT_NEAR(panel.Marks[3].Percent, 60, 1e-9);
}

TEST(CurvePanels, TrialWithoutStridesHasEmptyPanels) {
  sample::TrialBuilder builder;
  builder.AddPoint("LKneeAngles", Standing(1, 1, 1)).AddPoint("RKneeAngles", Standing(1, 1, 1));
  const CurvePanel panel = KneeOf(builder);
  EXPECT_TRUE(panel.Curves.empty());
  EXPECT_TRUE(panel.Means.empty());
  EXPECT_TRUE(panel.Marks.empty());
  EXPECT_TRUE(panel.Notes.empty()) << "no label is lacking";
}

TEST(CurvePanels, NoFileAtAllHasEmptyPanels) {
  const pages::Page page = PageOf({}, PageKind::Kinematics);
  ASSERT_EQ(page.Panels.size(), 12U);
  EXPECT_TRUE(PanelOf(page, "Knee flexion").Notes.empty());
}

visit::Normals NormalsOf(const std::string& rows) {
  const auto normals = visit::NormalsOfText(std::string(tests::kNormsHeading) + rows);
  EXPECT_TRUE(std::holds_alternative<visit::Normals>(normals));
  return std::get<visit::Normals>(normals);
}

TEST(CurvePanels, NormalsAreTheBandOfTheirPanelAlone) {
  const visit::Normals normals = NormalsOf(tests::CsvOfCurve("KneeAngles", "x", 15, 5));
  pages::PageChoice choice;
  choice.Normals = &normals;
  const pages::Page page = PageOf({ValuesOf(KneesAt(90, 20))}, PageKind::Kinematics, choice);
  const CurvePanel panel = PanelOf(page, "Knee flexion");
  ASSERT_TRUE(panel.Normal);
  EXPECT_EQ(panel.Normal->Mean[7], 15);
  EXPECT_EQ(panel.Normal->Deviation[50], 5);
  EXPECT_FALSE(PanelOf(page, "Knee varus").Normal);
}

TEST(CurvePanels, NormalsDoNotWidenTheRange) {
  const visit::Normals normals = NormalsOf(tests::CsvOfCurve("KneeAngles", "x", 95, 5));
  pages::PageChoice choice;
  choice.Normals = &normals;
  const CurvePanel panel = KneeOf({ValuesOf(KneesAt(10, 20))}, choice);
  EXPECT_EQ(panel.Ordinate, (Range{-20, 80, 20, false}));
}

TEST(CurvePanels, NormalsThatAreMissingAtAnInstantLeaveAGap) {
  std::string rows = tests::CsvOfCurve("KneeAngles", "x", 15, 5);
  const auto at = rows.find("KneeAngles,x,20,15,5,");
  ASSERT_NE(at, std::string::npos);
  rows.replace(at, std::string("KneeAngles,x,20,15,5,").size(), "KneeAngles,x,20,15,,");
  const visit::Normals normals = NormalsOf(rows);
  pages::PageChoice choice;
  choice.Normals = &normals;
  const CurvePanel panel = KneeOf({ValuesOf(KneesAt(10, 20))}, choice);
  ASSERT_TRUE(panel.Normal);
  EXPECT_EQ(panel.Normal->Mean[10], 15);
  EXPECT_FALSE(panel.Normal->Deviation[10]);
  EXPECT_EQ(panel.Normal->Deviation[11], 5);
}

TEST(CurvePanels, VariabilityIsKinematicsWithTheMeanDeviationOfEachSide) {
  const std::vector<pages::TrialValues> trials = {ValuesOf(KneesAt(10, 20)),
                                                  ValuesOf(KneesAt(16, 20))};
  const pages::Page page = PageOf(trials, PageKind::Variability);
  EXPECT_EQ(page.Kind, PageKind::Variability);
  EXPECT_EQ(page.Title, "Variability");
  const CurvePanel panel = PanelOf(page, "Knee flexion");
  EXPECT_EQ(panel.Curves.size(), 8U);
  ASSERT_EQ(panel.Deviations.size(), 2U);
  EXPECT_EQ(panel.Deviations[0].Side, GaitSide::Left);
  EXPECT_NEAR(panel.Deviations[0].Value.value(), std::sqrt(12.0), 1e-9);
  EXPECT_NEAR(panel.Deviations[1].Value.value(), 0, 1e-9);
  EXPECT_TRUE(PanelOf(page, "Hip flexion").Deviations.empty());
  EXPECT_TRUE(KneeOf(trials).Deviations.empty()) << "kinematics shows none";
}

TEST(CurvePanels, DeviationOfASingleStrideIsMissing) {
  const auto values =
      ValuesOf(tests::TrialOfOneStride("Left").AddPoint("LKneeAngles", Standing(10, 10, 10)));
  const CurvePanel panel = PanelOf(PageOf({values}, PageKind::Variability), "Knee flexion");
  ASSERT_EQ(panel.Deviations.size(), 1U);
  EXPECT_FALSE(panel.Deviations[0].Value);
}

}  // namespace
