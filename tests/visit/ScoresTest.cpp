// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/visit/VisitWalks.h"
#include "visit/Scores.h"

namespace {

using modVantrel::Component;
using modVantrel::GaitSide;
using testing::ElementsAre;
using visit::GaitScores;
using visit::kScoredVariables;
using visit::LabelCurves;
using visit::Normals;
using visit::Scores;

const std::vector<GaitSide> kOneStrideASide = {GaitSide::Left, GaitSide::Right};

// Normals that are 10 everywhere.
Normals NormalsOfTen() {
  Normals normals;
  for (const auto& variable : kScoredVariables) {
    normals.CurveAt(variable.Label, variable.Part).Mean.fill(10);
  }
  return normals;
}

// One stride a side. Left: pelvis 11 12 13, hip 14 15 16, knee 17, ankle 18, foot progression 19 in
// z; right: everything 8.
std::vector<LabelCurves> Subject() {
  return {tests::StandingCurves("LPelvisAngles", {11, 12, 13}, {}),
          tests::StandingCurves("LHipAngles", {14, 15, 16}, {}),
          tests::StandingCurves("LKneeAngles", {17, 99, 99}, {}),
          tests::StandingCurves("LAnkleAngles", {18, 99, 99}, {}),
          tests::StandingCurves("LFootProgressAngles", {99, 99, 19}, {}),
          tests::StandingCurves("RPelvisAngles", {}, {8, 8, 8}),
          tests::StandingCurves("RHipAngles", {}, {8, 8, 8}),
          tests::StandingCurves("RKneeAngles", {}, {8, 99, 99}),
          tests::StandingCurves("RAnkleAngles", {}, {8, 99, 99}),
          tests::StandingCurves("RFootProgressAngles", {}, {99, 99, 8})};
}

GaitScores ScoresOf(const std::vector<LabelCurves>& trial, const Normals& normals) {
  Scores scores;
  scores.Add(trial, kOneStrideASide);
  return scores.Against(normals);
}

TEST(Scores, WorkedExample) {
  // Against normals of 10 everywhere the left variables differ by 1, 2, ... 9, the right ones by
  // -2. The Gait Variable Scores are 1 ... 9 and 2; the left profile score is
  // sqrt((1 + 4 + 9 + ... + 81) / 9) = sqrt(285 / 9), the right one 2, and the overall one
  // sqrt((285 + 6 * 4) / 15): the right pelvis does not count a second time.
  const GaitScores scores = ScoresOf(Subject(), NormalsOfTen());
  for (std::size_t i = 0; i < kScoredVariables.size(); ++i) {
    EXPECT_DOUBLE_EQ(*scores.Left.Variables[i].Value, static_cast<double>(i + 1));
    EXPECT_DOUBLE_EQ(*scores.Right.Variables[i].Value, 2);
    EXPECT_EQ(scores.Left.Variables[i].Count, 1);
  }
  EXPECT_DOUBLE_EQ(*scores.Left.Profile.Value, std::sqrt(285.0 / 9));
  EXPECT_DOUBLE_EQ(*scores.Right.Profile.Value, 2);
  EXPECT_DOUBLE_EQ(*scores.Overall.Value, std::sqrt(309.0 / 15));
  EXPECT_EQ(scores.Left.Profile.Count, 1);
  EXPECT_EQ(scores.Overall.Count, 2);
  EXPECT_TRUE(scores.Lacking.empty());
}

TEST(Scores, VariableScoreIsTheRootMeanSquareOverTheInstants) {
  // The normal differs by 3 at 17 of the 51 instants: sqrt(17 * 9 / 51).
  Normals normals = NormalsOfTen();
  auto& knee = normals.CurveAt("KneeAngles", Component::X).Mean;
  knee.fill(8);
  std::fill_n(knee.begin(), 17, 11);
  EXPECT_DOUBLE_EQ(*ScoresOf(Subject(), normals).Right.Variables[6].Value, std::sqrt(3.0));
}

TEST(Scores, MeanCurveOverAllStridesIsScored) {
  // Strides at 13 and 9 make a mean of 11, one from the normal: not 3 and 1 apart.
  Scores scores;
  scores.Add({tests::StandingCurves("LKneeAngles", {13, 0, 0}, {})}, {});
  scores.Add({tests::StandingCurves("lkneeangles", {9, 0, 0}, {})}, {});
  const GaitScores against = scores.Against(NormalsOfTen());
  EXPECT_DOUBLE_EQ(*against.Left.Variables[6].Value, 1);
  EXPECT_EQ(against.Left.Variables[6].Count, 2);
}

TEST(Scores, VariableThatTheTrialsLackLeavesOutWhatNeedsIt) {
  std::vector<LabelCurves> subject = Subject();
  subject.pop_back();  // the right foot progression
  const GaitScores scores = ScoresOf(subject, NormalsOfTen());
  EXPECT_FALSE(scores.Right.Variables[8].Value);
  EXPECT_EQ(scores.Right.Variables[8].Count, 0);
  EXPECT_FALSE(scores.Right.Profile.Value);
  EXPECT_FALSE(scores.Overall.Value);
  EXPECT_TRUE(scores.Left.Profile.Value);
  EXPECT_THAT(scores.Lacking, ElementsAre("Right FootProgressAngles.z: no curve in the trials"));
}

TEST(Scores, RightPelvisIsNotNeededForTheOverallScore) {
  std::vector<LabelCurves> subject = Subject();
  subject.erase(subject.begin() + 5);
  const GaitScores scores = ScoresOf(subject, NormalsOfTen());
  EXPECT_FALSE(scores.Right.Profile.Value);
  EXPECT_DOUBLE_EQ(*scores.Overall.Value, std::sqrt(309.0 / 15));
}

TEST(Scores, VariableThatTheNormalsLackIsNamedForBothSides) {
  Normals normals;
  for (const auto& variable : kScoredVariables) {
    if (variable.Name != "HipAngles.y") normals.CurveAt(variable.Label, variable.Part).Mean.fill(1);
  }
  const GaitScores scores = ScoresOf(Subject(), normals);
  EXPECT_FALSE(scores.Left.Variables[4].Value);
  EXPECT_EQ(scores.Left.Variables[4].Count, 1) << "its curves are there";
  EXPECT_FALSE(scores.Overall.Value);
  EXPECT_THAT(scores.Lacking, ElementsAre("Left HipAngles.y: no curve in the normals",
                                          "Right HipAngles.y: no curve in the normals"));
}

TEST(Scores, CurveWithAMissingValueHasNoScore) {
  Normals normals = NormalsOfTen();
  normals.CurveAt("KneeAngles", Component::X).Mean[4] = std::nan("");
  const GaitScores scores = ScoresOf(Subject(), normals);
  EXPECT_FALSE(scores.Left.Variables[6].Value);
  EXPECT_THAT(scores.Lacking, ElementsAre("Left KneeAngles.x: a value of its curves is missing",
                                          "Right KneeAngles.x: a value of its curves is missing"));
}

TEST(Scores, StridesOfAllTrialsAreCounted) {
  Scores scores;
  scores.Add({}, kOneStrideASide);
  scores.Add({}, std::vector{GaitSide::Left});
  const GaitScores against = scores.Against({});
  EXPECT_EQ(against.Left.Profile.Count, 2);
  EXPECT_EQ(against.Right.Profile.Count, 1);
  EXPECT_EQ(against.Overall.Count, 3);
}

TEST(Scores, FiveLabelsOfEitherSideAreNeeded) {
  EXPECT_TRUE(Scores::Needs("LPELVISANGLES"));
  EXPECT_TRUE(Scores::Needs("RFOOTPROGRESSANGLES"));
  EXPECT_FALSE(Scores::Needs("PELVISANGLES"));
  EXPECT_FALSE(Scores::Needs("LKNEEMOMENT"));
}

}  // namespace
