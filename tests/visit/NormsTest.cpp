// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "tests/visit/VisitWalks.h"
#include "visit/Norms.h"

namespace {

using modVantrel::Component;
using modVantrel::GaitSide;
using tests::AddStandingCurve;
using visit::GaitMeasures;
using visit::LabelCurves;
using visit::Norms;

// The curves of a label that stand still at these places in x, one for each stride.
LabelCurves Label(const std::string& label, const std::vector<double>& places) {
  LabelCurves curves{label, "deg", {}, {}};
  for (const double place : places) {
    AddStandingCurve(curves.Of(visit::SideOfLabel(label)), {place, 0, 0});
  }
  return curves;
}

GaitMeasures Stride(GaitSide side, double strideTime) {
  GaitMeasures stride;
  stride.Side = side;
  stride.StrideTime = strideTime;
  return stride;
}

TEST(Norms, SampleIsTheMeanCurveOfOneTrialAndSide) {
  // Samples 10 (of two strides), 20 and 60: mean 30, deviation sqrt((400 + 100 + 900) / 2).
  Norms norms;
  norms.Add({Label("LKneeAngles", {9, 11}), Label("RKneeAngles", {20})}, {});
  norms.Add({Label("LKneeAngles", {60}), Label("RKneeAngles", {})}, {});
  ASSERT_EQ(norms.Curves().size(), 1U);
  const visit::NormCurves& knee = norms.Curves()[0];
  EXPECT_EQ(knee.Label, "KneeAngles");
  EXPECT_EQ(knee.Unit, "deg");
  EXPECT_EQ(knee.Samples.Count(), 3);
  EXPECT_DOUBLE_EQ((*knee.Samples.Mean(Component::X))[50], 30);
  EXPECT_DOUBLE_EQ((*knee.Samples.Deviation(Component::X))[50], std::sqrt(700.0));
}

TEST(Norms, LabelsStandInTheOrderInWhichTheTrialsFirstHaveThem) {
  Norms norms;
  norms.Add({Label("RHipAngles", {1}), Label("LKneeAngles", {1}), Label("LHIPANGLES", {1})}, {});
  norms.Add({Label("LAnkleAngles", {1}), Label("LHipAngles", {1})}, {});
  std::string order;
  for (const auto& curves : norms.Curves()) {
    order += curves.Label + std::to_string(curves.Samples.Count()) + " ";
  }
  EXPECT_EQ(order, "HipAngles3 KneeAngles1 AnkleAngles1 ");
}

TEST(Norms, LabelsOfNoSideAndSingleLettersAreLeftOut) {
  EXPECT_FALSE(visit::IsNormLabel("SACR"));
  EXPECT_FALSE(visit::IsNormLabel("L"));
  EXPECT_FALSE(visit::IsNormLabel(""));
  EXPECT_TRUE(visit::IsNormLabel("rX"));
  Norms norms;
  norms.Add({tests::StandingCurves("SACR", {}, {})}, {});
  EXPECT_TRUE(norms.Curves().empty());
}

TEST(Norms, BlankInFrontOfALabelIsNoPartOfItsName) {
  Norms norms;
  norms.Add({tests::StandingCurves(" LKneeAngles", {10, 0, 0}, {})}, {});
  ASSERT_EQ(norms.Curves().size(), 1U);
  EXPECT_EQ(norms.Curves()[0].Label, "KneeAngles");
}

TEST(Norms, MeasuresAreMeansOfTrialsAndSidesToo) {
  // Samples 1.0 (of two strides) and 1.4.
  constexpr std::size_t kStrideTime = 2;
  Norms norms;
  norms.Add({}, std::vector{Stride(GaitSide::Left, 0.9), Stride(GaitSide::Left, 1.1),
                            Stride(GaitSide::Right, 1.4)});
  const visit::Statistics& time = norms.Measures()[kStrideTime];
  EXPECT_EQ(time.Count(), 2);
  EXPECT_DOUBLE_EQ(*time.Mean(), 1.2);
  EXPECT_DOUBLE_EQ(*time.Deviation(), std::sqrt(0.08));
  EXPECT_EQ(norms.Measures()[0].Count(), 0) << "no stride has a speed";
}

}  // namespace
