// SPDX-License-Identifier: GPL-3.0-or-later

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "support/ShortestNumber.h"

namespace {

std::string Shortest(float number) {
  std::string text;
  modAllPurpose::AppendShortest(text, number);
  return text;
}

float FloatOf(std::uint32_t bits) { return std::bit_cast<float>(bits); }

TEST(ShortestNumber, WritesNoMoreDigitsThanReadBackToTheFloat) {
  EXPECT_EQ(Shortest(0.1F), "0.1");
  EXPECT_EQ(Shortest(-12.0F), "-12");
  EXPECT_EQ(Shortest(1.0F / 3), "0.33333334");
  EXPECT_EQ(Shortest(1234.5677F), "1234.5677");
  EXPECT_EQ(Shortest(16777215.0F), "16777215");
  EXPECT_EQ(Shortest(0.00012345678F), "0.00012345678");
  EXPECT_EQ(Shortest(100.0F), "100");
  EXPECT_EQ(Shortest(1e-5F), "1e-05");
}

TEST(ShortestNumber, ZeroKeepsItsSign) {
  EXPECT_EQ(Shortest(0.0F), "0");
  EXPECT_EQ(Shortest(-0.0F), "-0");
}

// The library's own shortest form, which takes longer, is the measure for every exponent.
TEST(ShortestNumber, IsThatOfTheLibraryAllOverTheFloats) {
  constexpr std::uint32_t kEndless = 0x7F800000;
  constexpr std::uint32_t kStep = 3989;  // a prime, so that every bit changes
  std::string text;
  for (std::uint32_t bits = 1; bits < kEndless; bits += kStep) {
    const float number = FloatOf(bits);
    text.clear();
    modAllPurpose::AppendShortest(text, number);
    ASSERT_EQ(text, fmt::format("{}", number)) << bits;
  }
}

// Where the gap to the next float changes, and around whole numbers.
TEST(ShortestNumber, IsThatOfTheLibraryAroundThePowersOfTwo) {
  for (int exponent = -40; exponent <= 60; ++exponent) {
    const auto middle = std::bit_cast<std::uint32_t>(std::ldexp(1.0F, exponent));
    for (std::uint32_t bits = middle - 100; bits <= middle + 100; ++bits) {
      EXPECT_EQ(Shortest(FloatOf(bits)), fmt::format("{}", FloatOf(bits)));
      EXPECT_EQ(Shortest(-FloatOf(bits)), fmt::format("{}", -FloatOf(bits)));
    }
  }
}

}  // namespace
