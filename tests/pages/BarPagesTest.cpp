// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>

#include <gtest/gtest.h>

#include "pages/BarRange.h"
#include "tests/pages/PageTrials.h"
#include "tests/visit/VisitWalks.h"
#include "visit/NormalFile.h"
#include "visit/Scores.h"

// The pages of bars: measures and scores.
namespace {

using modVantrel::GaitSide;
using pages::BarPanel;
using pages::Page;
using pages::PageKind;
using pages::Range;
using tests::PageOf;
using tests::Standing;
using tests::TrialOfFourStrides;
using tests::ValuesOf;

const BarPanel& BarsOf(const Page& page, std::size_t i) {
  return std::get<BarPanel>(page.Panels.at(i));
}

// Left strides of 50 frames at 64 Hz; a stride of the second file lasts 40.
sample::TrialBuilder QuickStride() {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 81).Rate(64);
  tests::AddStrideEvents(builder, "Left",
                         {16.0F / 64, 20.0F / 64, 36.0F / 64, 40.0F / 64, 56.0F / 64});
  return builder;
}

TEST(MeasurePage, HasAPanelForEachMeasureInTheOrderOfTables) {
  const Page page = PageOf({ValuesOf(TrialOfFourStrides())}, PageKind::Measures);
  EXPECT_EQ(page.Rows, 3);
  EXPECT_EQ(page.Columns, 4);
  ASSERT_EQ(page.Panels.size(), visit::kGaitMeasureCount);
  for (std::size_t i = 0; i < page.Panels.size(); ++i) {
    const BarPanel& panel = BarsOf(page, i);
    EXPECT_EQ(panel.Row, static_cast<int>(i / 4) + 1);
    EXPECT_EQ(panel.Column, static_cast<int>(i % 4) + 1);
    ASSERT_EQ(panel.Groups.size(), 1U);
    EXPECT_EQ(panel.Groups[0].Name, visit::GaitMeasureTable()[i].Name);
    EXPECT_EQ(panel.Unit, visit::GaitMeasureTable()[i].Unit);
  }
  EXPECT_EQ(BarsOf(page, 0).Title, "Walking speed");
  EXPECT_EQ(BarsOf(page, 9).Title, "Opposite foot contact");
}

TEST(MeasurePage, BarsAreTheMeansOfEachSideOverAllFiles) {
  const std::vector<pages::TrialValues> trials = {ValuesOf(TrialOfFourStrides()),
                                                  ValuesOf(QuickStride())};
  const pages::BarGroup group = BarsOf(PageOf(trials, PageKind::Measures), 2).Groups.at(0);
  ASSERT_EQ(group.Bars.size(), 2U);
  EXPECT_EQ(group.Bars[0].Side, GaitSide::Left);
  EXPECT_EQ(group.Bars[0].Count, 3);
  const double mean = (50 + 50 + 40) / 3.0 / 64;
  EXPECT_NEAR(group.Bars[0].Value.value(), mean, 1e-12);
  EXPECT_NEAR(group.Bars[0].Deviation.value(), std::sqrt(100.0 / 3) / 64, 1e-12);
  EXPECT_EQ(group.Bars[1].Side, GaitSide::Right);
  EXPECT_EQ(group.Bars[1].Count, 2);
  EXPECT_NEAR(group.Bars[1].Value.value(), 50.0 / 64, 1e-12);
  const double right = 50.0 / 64;
  EXPECT_NEAR(group.Asymmetry.value(), (right - mean) / ((right + mean) / 2) * 100, 1e-9);
}

TEST(MeasurePage, StridesThatAreLeftOutDoNotCount) {
  pages::PageChoice choice;
  choice.LeftOut = {{1, GaitSide::Left, 1}};
  const std::vector<pages::TrialValues> trials = {ValuesOf(TrialOfFourStrides()),
                                                  ValuesOf(QuickStride())};
  const Page page = PageOf(trials, PageKind::Measures, choice);
  const pages::Bar bar = BarsOf(page, 2).Groups.at(0).Bars.at(0);
  EXPECT_EQ(bar.Count, 2);
  EXPECT_NEAR(bar.Value.value(), 50.0 / 64, 1e-12);
}

TEST(MeasurePage, SingleStrideHasNoDeviationAndNoStrideNoBar) {
  const Page page = PageOf({ValuesOf(QuickStride())}, PageKind::Measures);
  const pages::BarGroup group = BarsOf(page, 2).Groups.at(0);
  EXPECT_EQ(group.Bars[0].Count, 1);
  EXPECT_FALSE(group.Bars[0].Deviation);
  EXPECT_EQ(group.Bars[1].Count, 0);
  EXPECT_FALSE(group.Bars[1].Value);
  EXPECT_FALSE(group.Asymmetry);
  EXPECT_FALSE(BarsOf(page, 0).Groups[0].Bars[0].Value) << "there are no toe markers";
}

TEST(MeasurePage, NormalsAreTheBandBehindTheBars) {
  const auto text =
      visit::NormalsOfText(std::string(tests::kNormsHeading) + "stride_time,,,1.1,0.1,20,s\n");
  pages::PageChoice choice;
  choice.Normals = std::get_if<visit::Normals>(&text);
  ASSERT_NE(choice.Normals, nullptr);
  const Page page = PageOf({ValuesOf(QuickStride())}, PageKind::Measures, choice);
  const pages::BarGroup& group = BarsOf(page, 2).Groups.at(0);
  EXPECT_EQ(group.NormalMean, 1.1);
  EXPECT_EQ(group.NormalDeviation, 0.1);
  EXPECT_GE(BarsOf(page, 2).Ordinate.High, 1.2);
  EXPECT_FALSE(BarsOf(page, 1).Groups[0].NormalMean);
}

pages::BarGroup GroupOf(double value, std::optional<double> deviation) {
  pages::BarGroup group;
  group.Bars = {{GaitSide::Left, 2, value, deviation}};
  return group;
}

Range RangeOf(double value, std::optional<double> deviation) {
  return pages::RangeOfBars(std::vector{GroupOf(value, deviation)});
}

TEST(RangeOfBars, IsRoundAndHoldsZeroTheBarsAndTheirDeviations) {
  EXPECT_EQ(RangeOf(108, std::nullopt), (Range{0, 150, 50, false}));
  EXPECT_EQ(RangeOf(108, 45), (Range{0, 200, 50, false}));
  EXPECT_EQ(RangeOf(0.1, 0.3), (Range{-0.2, 0.4, 0.2, false}));
  EXPECT_EQ(RangeOf(-4, std::nullopt), (Range{-4, 0, 1, false}));
}

TEST(RangeOfBars, WithoutBarsOrWithBarsOfZeroIsFromZeroToOne) {
  EXPECT_EQ(pages::RangeOfBars({}), (Range{0, 1, 0.2, false}));
  EXPECT_EQ(RangeOf(0, 0), (Range{0, 1, 0.2, false}));
}

// The nine scored variables of a side, `left` and `right` degrees at every instant.
sample::TrialBuilder AllScoredAt(float left, float right) {
  sample::TrialBuilder builder = TrialOfFourStrides();
  for (const std::string label :
       {"PelvisAngles", "HipAngles", "KneeAngles", "AnkleAngles", "FootProgressAngles"}) {
    builder.AddPoint("L" + label, Standing(left, left, left));
    builder.AddPoint("R" + label, Standing(right, right, right));
  }
  return builder;
}

std::string AllNormalsAtZero() {
  std::string rows(tests::kNormsHeading);
  for (const auto& variable : visit::kScoredVariables) {
    rows += tests::CsvOfCurve(variable.Label, ComponentName(variable.Part), 0, 1);
  }
  return rows;
}

class ScorePage : public testing::Test {
 protected:
  Page ScoresOf(const sample::TrialBuilder& builder, std::set<pages::StrideId> leftOut = {}) const {
    pages::PageChoice choice;
    choice.Normals = &std::get<visit::Normals>(normals_);
    choice.LeftOut = std::move(leftOut);
    return PageOf({ValuesOf(builder)}, PageKind::Scores, choice);
  }

 private:
  std::variant<visit::Normals, visit::NormalFault> normals_ =
      visit::NormalsOfText(AllNormalsAtZero());
};

TEST_F(ScorePage, HasAGroupForEachVariableAndOneForTheProfiles) {
  const Page page = ScoresOf(AllScoredAt(3, 4));
  ASSERT_EQ(page.Panels.size(), 1U);
  const BarPanel& panel = BarsOf(page, 0);
  ASSERT_EQ(panel.Groups.size(), 10U);
  EXPECT_EQ(panel.Unit, "deg");
  EXPECT_EQ(panel.Groups[6].Name, "KneeAngles.x");
  EXPECT_EQ(panel.Groups[6].Title, "Knee flexion");
  ASSERT_EQ(panel.Groups[6].Bars.size(), 2U);
  EXPECT_NEAR(panel.Groups[6].Bars[0].Value.value(), 3, 1e-9);
  EXPECT_NEAR(panel.Groups[6].Bars[1].Value.value(), 4, 1e-9);
  EXPECT_EQ(panel.Groups[6].Bars[1].Count, 2);
  EXPECT_TRUE(panel.Notes.empty());
}

TEST_F(ScorePage, ProfilesAreOfLeftRightAndBoth) {
  const Page page = ScoresOf(AllScoredAt(3, 4));
  const pages::BarGroup& profile = BarsOf(page, 0).Groups.at(9);
  EXPECT_EQ(profile.Name, "GPS");
  ASSERT_EQ(profile.Bars.size(), 3U);
  EXPECT_NEAR(profile.Bars[0].Value.value(), 3, 1e-9);
  EXPECT_NEAR(profile.Bars[1].Value.value(), 4, 1e-9);
  EXPECT_EQ(profile.Bars[2].Side, GaitSide::None);
  EXPECT_NEAR(profile.Bars[2].Value.value(), std::sqrt((9 * 9 + 6 * 16) / 15.0), 1e-9);
  EXPECT_EQ(profile.Bars[2].Count, 4);
}

TEST_F(ScorePage, StridesThatAreLeftOutDoNotCount) {
  const Page page = ScoresOf(AllScoredAt(3, 4), {{0, GaitSide::Left, 2}});
  const BarPanel& panel = BarsOf(page, 0);
  EXPECT_EQ(panel.Groups.at(0).Bars.at(0).Count, 1);
  EXPECT_EQ(panel.Groups.at(9).Bars.at(0).Count, 1);
  EXPECT_EQ(panel.Groups.at(9).Bars.at(2).Count, 3);
}

TEST_F(ScorePage, VariableThatIsLackingIsNamedAndHasNoBar) {
  const Page page = ScoresOf(TrialOfFourStrides().AddPoint("LKneeAngles", Standing(3, 3, 3)));
  const BarPanel& panel = BarsOf(page, 0);
  EXPECT_NEAR(panel.Groups.at(6).Bars.at(0).Value.value(), 3, 1e-9);
  EXPECT_FALSE(panel.Groups.at(6).Bars.at(1).Value);
  EXPECT_FALSE(panel.Groups.at(9).Bars.at(0).Value);
  EXPECT_EQ(panel.Notes.size(), 17U);
  EXPECT_EQ(panel.Notes.at(0), "Left PelvisAngles.x: no curve in the trials");
}

TEST(ScorePageWithoutNormals, SaysHowToChooseThem) {
  const Page page = PageOf({ValuesOf(AllScoredAt(3, 4))}, PageKind::Scores);
  const BarPanel& panel = BarsOf(page, 0);
  EXPECT_TRUE(panel.Groups.empty());
  ASSERT_EQ(panel.Notes.size(), 1U);
  EXPECT_NE(panel.Notes[0].find("--normal FILE"), std::string::npos);
  EXPECT_EQ(panel.Ordinate, (Range{0, 1, 0.2, false}));
}

}  // namespace
