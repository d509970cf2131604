// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "visit/Summary.h"

namespace {

using modVantrel::GaitSide;
using visit::GaitMeasures;
using visit::SideStatistics;
using visit::Summary;

constexpr std::size_t kSpeed = 0;
constexpr std::size_t kStrideTime = 2;

GaitMeasures StrideOfSpeed(GaitSide side, double strideTime, std::optional<double> speed) {
  GaitMeasures stride;
  stride.Side = side;
  stride.StrideTime = strideTime;
  stride.WalkingSpeed = speed;
  return stride;
}

TEST(Summary, TakesTheStridesOfEitherSide) {
  const std::vector strides = {StrideOfSpeed(GaitSide::Left, 1.0, 1.2),
                               StrideOfSpeed(GaitSide::Right, 1.5, 1.3),
                               StrideOfSpeed(GaitSide::Left, 1.2, 1.4)};
  const SideStatistics time = Summary(strides).Measures()[kStrideTime];
  EXPECT_EQ(time.Left.Count(), 2);
  EXPECT_DOUBLE_EQ(*time.Left.Mean(), 1.1);
  EXPECT_DOUBLE_EQ(*time.Left.Deviation(), std::sqrt(0.02));
  EXPECT_EQ(time.Right.Count(), 1);
  EXPECT_FALSE(time.Right.Deviation());
}

TEST(Summary, MissingMeasureDoesNotCountInItsNumber) {
  const std::vector strides = {StrideOfSpeed(GaitSide::Left, 1.0, std::nullopt),
                               StrideOfSpeed(GaitSide::Left, 1.0, 1.4)};
  const Summary summary(strides);
  EXPECT_EQ(summary.Measures()[kSpeed].Left.Count(), 1);
  EXPECT_EQ(summary.Measures()[kSpeed].Left.Mean(), 1.4);
  EXPECT_EQ(summary.Measures()[kStrideTime].Left.Count(), 2);
}

TEST(Summary, StridesOfSeveralTrialsArePooled) {
  // Three strides, not two trials: the mean is 2, not 1.75.
  Summary summary;
  summary.Add(std::vector{StrideOfSpeed(GaitSide::Left, 1.0, {})});
  summary.Add(
      std::vector{StrideOfSpeed(GaitSide::Left, 2.0, {}), StrideOfSpeed(GaitSide::Left, 3.0, {})});
  EXPECT_EQ(summary.Measures()[kStrideTime].Left.Count(), 3);
  EXPECT_DOUBLE_EQ(*summary.Measures()[kStrideTime].Left.Mean(), 2);
}

}  // namespace
