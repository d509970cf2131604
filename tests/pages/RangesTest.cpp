// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "pages/Ranges.h"

namespace {

using pages::Extent;
using pages::Range;
using pages::RoundRange;

Extent ExtentOf(const std::vector<double>& numbers) {
  Extent extent;
  for (const double number : numbers) extent.Add(number);
  return extent;
}

const Range kFlexion{-20, 80, 20, false};
const Range kMoment{-0.5, 0.5, 0.25, false};

Range Widened(const Range& fixed, double low, double high) {
  return WidenedFor(fixed, ExtentOf({low, high}));
}

TEST(WidenedRange, StaysWhereTheDataStayInIt) {
  EXPECT_EQ(Widened(kFlexion, -19.9, 79.9), kFlexion);
  EXPECT_EQ(Widened(kFlexion, 10, 10), kFlexion);
}

TEST(WidenedRange, StaysForDataThatReachItsEnds) {
  EXPECT_EQ(Widened(kFlexion, -20, 80), kFlexion);
  EXPECT_EQ(Widened(kMoment, -0.5, 0.5), kMoment);
}

TEST(WidenedRange, GrowsByAWholeTickAtTheUpperEndAlone) {
  EXPECT_EQ(Widened(kFlexion, 0, 80.001), (Range{-20, 100, 20, true}));
  EXPECT_EQ(Widened(kFlexion, 0, 100), (Range{-20, 100, 20, true}));
}

TEST(WidenedRange, GrowsByAWholeTickAtTheLowerEndAlone) {
  EXPECT_EQ(Widened(kFlexion, -20.001, 0), (Range{-40, 80, 20, true}));
  EXPECT_EQ(Widened(kFlexion, -40, 0), (Range{-40, 80, 20, true}));
}

TEST(WidenedRange, GrowsByAsManyTicksAsNeededAtBothEnds) {
  EXPECT_EQ(Widened(kFlexion, -65, 141), (Range{-80, 160, 20, true}));
  EXPECT_EQ(Widened(kMoment, -0.6, 1.01), (Range{-0.75, 1.25, 0.25, true}));
}

TEST(WidenedRange, StaysWithoutData) { EXPECT_EQ(WidenedFor(kFlexion, {}), kFlexion); }

TEST(WidenedRange, DoesNotCountWhatIsNotFinite) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const auto extent =
      ExtentOf({kInfinity, 5, -kInfinity, std::numeric_limits<double>::quiet_NaN()});
  EXPECT_EQ(WidenedFor(kFlexion, extent), kFlexion);
}

TEST(WidenedRange, GrowsByWholeTicksHoweverManyTheyAre) {
  EXPECT_EQ(Widened(kFlexion, 0, 1980), (Range{-20, 1980, 20, true})) << "a hundred ticks";
  EXPECT_EQ(Widened(kFlexion, 0, 1981), (Range{-20, 2000, 20, true}));
  EXPECT_EQ(Widened(kMoment, -71000.1, 0), (Range{-71000.25, 0.5, 0.25, true}));
}

TEST(WidenedRange, EndsForTheGreatestNumbersToo) {
  const double greatest = std::numeric_limits<float>::max();
  const Range wide = Widened(kFlexion, -greatest, greatest);
  EXPECT_TRUE(wide.IsWidened);
  EXPECT_LE(wide.Low, -greatest);
  EXPECT_GE(wide.High, greatest);
  EXPECT_EQ(wide.Tick, 20);
}

TEST(RoundRange, HasATickOfOneTwoOrFiveTimesAPowerOfTen) {
  EXPECT_EQ(RoundRange(ExtentOf({0, 5})), (Range{0, 5, 1, false}));
  EXPECT_EQ(RoundRange(ExtentOf({0, 6})), (Range{0, 6, 2, false}));
  EXPECT_EQ(RoundRange(ExtentOf({0, 24})), (Range{0, 25, 5, false}));
  EXPECT_EQ(RoundRange(ExtentOf({0, 26})), (Range{0, 30, 10, false}));
  EXPECT_EQ(RoundRange(ExtentOf({0, 1.3})), (Range{0, 1.5, 0.5, false}));
  EXPECT_EQ(RoundRange(ExtentOf({-0.31, 0.62})), (Range{-0.4, 0.8, 0.2, false}));
  EXPECT_EQ(RoundRange(ExtentOf({-800, 71000})), (Range{-20000, 80000, 20000, false}));
}

TEST(RoundRange, HoldsAllDataAndEndsOnTicks) {
  for (double low = -3.7; low < 4; low += 0.37) {
    for (double span = 0.001; span < 5000; span *= 1.7) {
      const Range range = RoundRange(ExtentOf({low, low + span}));
      EXPECT_LE(range.Low, low);
      EXPECT_GE(range.High, low + span);
      EXPECT_NEAR(range.Low / range.Tick, std::round(range.Low / range.Tick), 1e-6);
      EXPECT_LE((range.High - range.Low) / range.Tick, 7.000001);
    }
  }
}

TEST(RoundRange, LiesAroundASingleNumber) {
  const Range range = RoundRange(ExtentOf({80}));
  EXPECT_LT(range.Low, 80);
  EXPECT_GT(range.High, 80);
  const Range zero = RoundRange(ExtentOf({0}));
  EXPECT_LT(zero.Low, 0);
  EXPECT_GT(zero.High, 0);
}

TEST(RoundRange, IsFromZeroToOneWithoutData) {
  EXPECT_EQ(RoundRange({}), (Range{0, 1, 0.2, false}));
}

}  // namespace
