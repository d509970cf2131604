// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "support/Arithmetic.h"
#include "tests/TestTrials.h"

namespace {

using namespace modAllPurposeNumbers;
using tests::ErrorNumberOf;

using tests::kDivisionByZero;
using tests::kOverflow;

TEST(Hypotenuse, IsExactWhereItCanBe) {
  EXPECT_EQ(Hypotenuse(3, -4), 5);
  EXPECT_EQ(Hypotenuse(-0.5, 0), 0.5);
  EXPECT_EQ(Hypotenuse(0, 0), 0);
}

TEST(Hypotenuse, IsHardlyFurtherOffThanTheNearestNumber) {
  constexpr long double kMost = 0.6L;  // of the distance between numbers; a bare root is off by 1
  double x = 0.001;
  for (int i = 0; i < 10000; ++i) {
    x = std::fmod(x * 1.37 + 0.011, 3.0);
    const double y = std::fmod(x * 7.13, 1.7);
    const auto exact = std::sqrt(static_cast<long double>(x) * x + static_cast<long double>(y) * y);
    const double length = Hypotenuse(x, y);
    const double next = std::nextafter(length, 10.0) - length;
    ASSERT_LE(std::fabs(length - exact), kMost * next) << x << ' ' << y;
  }
}

TEST(Hypotenuse, HoldsAtTheEndsOfTheNumbers) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Hypotenuse(-infinity, std::nan("")), infinity);
  EXPECT_EQ(Hypotenuse(std::nan(""), infinity), infinity);
  EXPECT_TRUE(std::isnan(Hypotenuse(std::nan(""), 1)));
  EXPECT_TRUE(std::isnan(Hypotenuse(1, std::nan(""))));
  EXPECT_DOUBLE_EQ(Hypotenuse(3e300, 4e300), 5e300);
  EXPECT_DOUBLE_EQ(Hypotenuse(3e-160, 4e-160), 5e-160);
}

TEST(ToSingle, RoundsToTheNearestFloat) {
  EXPECT_EQ(ToSingle(0.1), 0.1F);
  EXPECT_EQ(ToSingle(1.0 / 3.0), 1.0F / 3.0F);
}

TEST(ToSingle, FiniteValueThatDoesNotFitIsOverflow) {
  EXPECT_EQ(ErrorNumberOf([] { ToSingle(1e39); }), kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { ToSingle(-1e39); }), kOverflow);
}

TEST(ToSingle, InfinityAndNanOfTheDataPass) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(std::isinf(ToSingle(infinity)));
  EXPECT_TRUE(std::isnan(ToSingle(std::nan("")))) << "a missing sample is no error";
}

TEST(Divide, ByZeroIsAnErrorWhateverTheDividend) {
  EXPECT_EQ(ErrorNumberOf([] { Divide(1, 0); }), kDivisionByZero);
  EXPECT_EQ(ErrorNumberOf([] { Divide(0, 0); }), kDivisionByZero);
  EXPECT_EQ(ErrorNumberOf([] { Divide(1, -0.0); }), kDivisionByZero);
  EXPECT_EQ(Divide(1, 4), 0.25);
}

TEST(IntegerArithmetic, HoldsTheWholeRangeAndNothingElse) {
  EXPECT_EQ(AddIntegers(32766, 1), 32767);
  EXPECT_EQ(SubtractIntegers(-32767, 1), -32768);
  EXPECT_EQ(ErrorNumberOf([] { AddIntegers(32767, 1); }), kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { SubtractIntegers(-32768, 1); }), kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { SubtractIntegers(32767, -1); }), kOverflow);
}

TEST(ToLong, HoldsTheWholeRangeAndNothingElse) {
  EXPECT_EQ(ToLong(2147483647), 2147483647);
  EXPECT_EQ(ToLong(-2147483648LL), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ErrorNumberOf([] { ToLong(2147483648LL); }), kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { ToLong(-2147483649LL); }), kOverflow);
}

TEST(RoundToLong, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(RoundToLong(2.5), 2);
  EXPECT_EQ(RoundToLong(3.5), 4);
  EXPECT_EQ(RoundToLong(-2.5), -2);
  EXPECT_EQ(RoundToLong(2.4999), 2);
}

TEST(RoundToLong, WhatIsNoLongIsOverflow) {
  EXPECT_EQ(ErrorNumberOf([] { RoundToLong(2147483648.0); }), kOverflow);
  EXPECT_EQ(ErrorNumberOf([] { RoundToLong(std::nan("")); }), kOverflow);
  EXPECT_EQ(RoundToLong(2147483647.4), 2147483647);
}

}  // namespace
