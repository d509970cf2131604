// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <initializer_list>
#include <limits>

#include <gtest/gtest.h>

#include "tests/visit/VisitWalks.h"
#include "visit/CurveStatistics.h"
#include "visit/Statistics.h"

namespace {

using modVantrel::Component;
using tests::AddStandingCurve;
using visit::Asymmetry;
using visit::CurveStatistics;
using visit::Statistics;

Statistics Of(std::initializer_list<double> values) {
  Statistics statistics;
  for (const double value : values) statistics.Add(value);
  return statistics;
}

TEST(Statistics, NoNumberHasNeitherMeanNorDeviation) {
  EXPECT_EQ(Of({}).Count(), 0);
  EXPECT_FALSE(Of({}).Mean());
  EXPECT_FALSE(Of({}).Deviation());
}

TEST(Statistics, OneNumberHasNoDeviation) {
  EXPECT_EQ(Of({3}).Mean(), 3);
  EXPECT_FALSE(Of({3}).Deviation());
}

TEST(Statistics, DeviationIsThatOfASample) {
  // The mean is 5, the squares of the differences sum up to 32.
  const Statistics statistics = Of({2, 4, 4, 4, 5, 5, 7, 9});
  EXPECT_EQ(statistics.Count(), 8);
  EXPECT_DOUBLE_EQ(*statistics.Mean(), 5);
  EXPECT_DOUBLE_EQ(*statistics.Deviation(), std::sqrt(32.0 / 7));
}

TEST(Statistics, SmallDeviationAroundALargeMeanIsKept) {
  // 4, 7, 13, 16 around 10: the squares sum up to 90.
  const Statistics statistics = Of({1e9 + 4, 1e9 + 7, 1e9 + 13, 1e9 + 16});
  EXPECT_DOUBLE_EQ(*statistics.Deviation(), std::sqrt(30.0));
}

TEST(Asymmetry, IsTheDifferenceInPercentOfTheMeanOfBothSides) {
  EXPECT_DOUBLE_EQ(*Asymmetry({Of({0.9, 1.1}), Of({1.5})}), 40) << "0.5 of 1.25";
  EXPECT_DOUBLE_EQ(*Asymmetry({Of({1.5}), Of({1.0})}), -40) << "the left is larger";
  EXPECT_EQ(Asymmetry({Of({2}), Of({2})}), 0);
}

TEST(Asymmetry, IsMissingWhereASideIs) {
  EXPECT_FALSE(Asymmetry({Of({}), Of({1})}));
  EXPECT_FALSE(Asymmetry({Of({1}), Of({})}));
}

TEST(Asymmetry, IsMissingWhereTheSumIsZero) {
  EXPECT_FALSE(Asymmetry({Of({-1}), Of({1})}));
  EXPECT_FALSE(Asymmetry({Of({0}), Of({0})}));
}

// Curves that stand still at these places in x, at 0 in y and at their negatives in z.
CurveStatistics StandingAt(std::initializer_list<double> places) {
  CurveStatistics curves;
  for (const double place : places) AddStandingCurve(curves, {place, 0, -place});
  return curves;
}

TEST(CurveStatistics, MeanAndDeviationAreThoseOfEachInstant) {
  std::array<visit::CurveValues, 3> rising{};
  for (std::size_t i = 0; i < visit::kInstants; ++i) rising[1][i] = static_cast<double>(i);
  CurveStatistics curves;
  curves.Add(rising);
  curves.Add(std::array<visit::CurveValues, 3>{});
  EXPECT_EQ(curves.Count(), 2);
  // Of i and 0: mean i / 2, deviation i / sqrt(2).
  EXPECT_EQ((*curves.Mean(Component::Y))[0], 0);
  EXPECT_EQ((*curves.Mean(Component::Y))[50], 25);
  EXPECT_DOUBLE_EQ((*curves.Deviation(Component::Y))[50], 50 / std::sqrt(2.0));
  EXPECT_EQ((*curves.Deviation(Component::X))[50], 0);
}

TEST(CurveStatistics, OneCurveHasNoDeviationAndNoneNoMean) {
  EXPECT_FALSE(StandingAt({}).Mean(Component::X));
  EXPECT_TRUE(StandingAt({1}).Mean(Component::X));
  EXPECT_FALSE(StandingAt({1}).Deviation(Component::X));
}

TEST(CurveStatistics, MergedOnesAreThoseOfAllCurves) {
  CurveStatistics merged = StandingAt({1, 2});
  merged.Merge(StandingAt({6, 9, 12}));
  merged.Merge(StandingAt({}));
  CurveStatistics into = StandingAt({});
  into.Merge(merged);
  // Around the mean 6: 25 + 16 + 0 + 9 + 36 = 86.
  EXPECT_EQ(into.Count(), 5);
  EXPECT_DOUBLE_EQ((*into.Mean(Component::X))[7], 6);
  EXPECT_DOUBLE_EQ((*into.Deviation(Component::X))[7], std::sqrt(86.0 / 4));
  EXPECT_DOUBLE_EQ((*into.Mean(Component::Z))[50], -6);
}

TEST(CurveStatistics, MissingValueMakesItsInstantMissingAndNoOther) {
  std::array<visit::CurveValues, 3> gap{};
  gap[0][3] = std::numeric_limits<double>::quiet_NaN();
  CurveStatistics curves = StandingAt({1});
  curves.Add(gap);
  EXPECT_TRUE(std::isnan((*curves.Mean(Component::X))[3]));
  EXPECT_TRUE(std::isnan((*curves.Deviation(Component::X))[3]));
  EXPECT_EQ((*curves.Mean(Component::X))[4], 0.5);
}

}  // namespace
