// SPDX-License-Identifier: GPL-3.0-or-later

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/NumberForms.h"
#include "tests/TestTrials.h"

namespace {

using namespace modAllPurposeNumbers;

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

struct Row {
  std::string Pattern;
  double Value;
  std::string Expected;
};

void CheckRows(const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    EXPECT_EQ(FormatNumber(NumberPattern(row.Pattern), row.Value), row.Expected)
        << row.Pattern << " of " << row.Value;
  }
}

TEST(NumberPattern, WholeNumbers) {
  CheckRows({Row{"00", 0, "00"}, Row{"00", 7, "07"}, Row{"00", 123, "123"}, Row{"000", 1, "001"},
             Row{"000", 1000, "1000"}, Row{"0000", 30, "0030"}, Row{"000", -5, "-005"},
             Row{"  00", 0, "  00"}, Row{"  00", 50, "  50"}, Row{"00", 0.5, "01"},
             Row{"00", 1.5, "02"}, Row{"00", 2.5, "03"}, Row{"00", -2.5, "-03"},
             Row{"00", 2.4999999, "02"}});
}

TEST(NumberPattern, Times) {
  CheckRows({Row{"00.00000", 1.1F, "01.10000"}, Row{"00.00000", 0.000004F, "00.00000"},
             Row{"00.00000", 9.999996F, "10.00000"}, Row{"00.00000", 123.456F, "123.45600"},
             Row{"00.00000", 0, "00.00000"}, Row{"00.0000", 2.02F, "02.0200"},
             Row{"00.0000", -5.25F, "-05.2500"}, Row{"00.0000", 100.5F, "100.5000"}});
}

TEST(NumberPattern, Coordinates) {
  CheckRows({Row{"0000.0000", 123.4567F, "0123.4567"}, Row{"0000.0000", -12, "-0012.0000"},
             Row{"0000.0000", 987.6543F, "0987.6543"}, Row{"0000.0000", 12345.5F, "12345.5000"},
             Row{"0.00000000", 0.5F, "0.50000000"}, Row{"0.00000000", 1e-9F, "0.00000000"},
             Row{"0.00000000", -2048, "-2048.00000000"}});
}

TEST(NumberPattern, OptionalDigits) {
  CheckRows({Row{"###0.0000", 0.5F, "0.5000"}, Row{"###0.0000", 12345.5, "12345.5000"},
             Row{"0.0#########", 1.0F / 120.0F, "0.0083333338"},
             Row{"0.0#########", 0.02F, "0.0199999996"}, Row{"0.0#########", 1, "1.0"},
             Row{"0.0###########", 12.5, "12.5"}, Row{"0.0###########", 3, "3.0"},
             Row{"0.0###########", 0.000123456789012345, "0.000123456789"},
             Row{"0.0###########", 0.98999989032745361, "0.989999890327"}, Row{"#0.00", 0, "0.00"},
             Row{"#0.00", 12.125, "12.13"}, Row{"#0.00", 12.3456, "12.35"},
             Row{"#0.00", 100.999, "101.00"}});
}

TEST(NumberPattern, ThatIsAsLongAsItMayBePrintsAllItsPlaces) {
  const std::string blanks(16, ' ');
  const std::string pattern = blanks + "0000000000000000.000000000000";
  CheckRows({Row{pattern, -1.5, "-" + blanks + "0000000000000001.500000000000"},
             Row{pattern, -9007199254740991.0, "-" + blanks + "9007199254740991.000000000000"}});
}

TEST(NumberPattern, ThatIsTooLongOrNoPatternIsRefused) {
  for (const std::string pattern :
       {"                 0", "00000000000000000", "#################", "0.0000000000000",
        "0.0############", "0,0", "0 0", "0.0.0", "0.0 ", "0#.0", "0.#0", "-0"}) {
    EXPECT_EQ(tests::ErrorNumberOf([&] { (void)NumberPattern(pattern); }), 9) << pattern;
  }
}

TEST(NumberPattern, TiesGoAwayFromZero) {
  CheckRows({Row{"0.0###########", 0.5 / 4096 / 4096, "0.000000029802"},
             Row{"#0.00", 0.125, "0.13"}, Row{"#0.00", -0.125, "-0.13"},
             Row{"#0.00", 0.375, "0.38"}, Row{"00.0000", 0.03125F, "00.0313"},
             Row{"00.0000", -0.03125F, "-00.0313"},
             // 1.005 is stored below the tie, 1.00500000012 above it.
             Row{"#0.00", 1.005, "1.00"}, Row{"#0.00", 1.00500000012, "1.01"}});
}

TEST(NumberPattern, SignOfWhatPrintsAsZero) {
  CheckRows({Row{"0000.0000", -0.00001F, "-0000.0000"}, Row{"00.0000", -1e-30F, "-00.0000"},
             Row{"0000.0000", -0.0F, "0000.0000"}, Row{"0.0###########", -1e-40F, "-0.0"}});
}

TEST(NumberPattern, ExtremeValues) {
  CheckRows(
      {Row{"0000.0000", 3.4028234663852886e38, "340282346638528859811704183484516925440.0000"},
       Row{"0.00000000", 16777216, "16777216.00000000"},
       Row{"0000.0000", 1e16, "10000000000000000.0000"},
       Row{"0.0#########", 9007199254740993.0, "9007199254740992.0"},
       Row{"0.00000000", std::numeric_limits<float>::denorm_min(), "0.00000000"},
       Row{"0.00000000", std::numeric_limits<double>::denorm_min(), "0.00000000"}});
}

TEST(NumberPattern, NotFinite) {
  CheckRows({Row{"00.00000", kNan, "NaN"}, Row{"0000.0000", -kNan, "NaN"},
             Row{"000", kInfinity, "Inf"}, Row{"0.0###########", -kInfinity, "-Inf"}});
}

// The C library rounds ties to even, on the exact value; away from ties both must agree.
TEST(FormatNumber, AgreesWithTheCLibraryAwayFromTies) {
  std::mt19937 random(7);
  std::uniform_int_distribution<std::uint32_t> bits;
  const NumberPattern pattern("0000.0000");
  for (int i = 0; i < 200000; ++i) {
    const float value = std::bit_cast<float>(bits(random));
    if (!std::isfinite(value)) continue;
    const double scaled = std::fabs(double{value}) * 10000.0;
    if (std::fabs(scaled - std::floor(scaled) - 0.5) < 1e-6) continue;
    char expected[64];
    const int width = value < 0 ? 10 : 9;
    std::snprintf(expected, sizeof expected, "%0*.4f", width, double{value});
    ASSERT_EQ(FormatNumber(pattern, double{value}), expected);
  }
}

TEST(FormatNumber, AgreesWithTheCLibraryToTwelveDecimals) {
  std::mt19937 random(11);
  std::uniform_real_distribution<float> values(-2000.0F, 2000.0F);
  const NumberPattern pattern("0.000000000000");
  for (int i = 0; i < 200000; ++i) {
    const double value{values(random)};
    char expected[64];
    std::snprintf(expected, sizeof expected, "%.12f", value);
    // A float of this size has at most 24 fraction bits beyond its exponent: ties do occur, so only
    // the last digit may differ, by one.
    const std::string printed = FormatNumber(pattern, value);
    ASSERT_NEAR(std::stod(printed), std::stod(expected), 1.1e-12);
    ASSERT_EQ(printed.size(), std::string(expected).size());
  }
}

struct GeneralRow {
  float Value;
  std::string Expected;
};

TEST(GeneralForm, PrintsTheForm) {
  const std::vector<GeneralRow> rows = {GeneralRow{120, "120"},
                                        GeneralRow{1.0F / 120.0F, "0.008333334"},
                                        GeneralRow{-1, "-1"},
                                        GeneralRow{2.5F, "2.5"},
                                        GeneralRow{1e7F, "1E+07"},
                                        GeneralRow{1234567, "1234567"},
                                        GeneralRow{12345678, "1.234568E+07"},
                                        GeneralRow{0.0001F, "0.0001"},
                                        GeneralRow{0.00001F, "1E-05"},
                                        GeneralRow{3.4028235e38F, "3.402823E+38"},
                                        GeneralRow{0, "0"},
                                        GeneralRow{1.401298e-45F, "1.401298E-45"},
                                        GeneralRow{kNan, "NaN"},
                                        GeneralRow{kInfinity, "Inf"},
                                        GeneralRow{-kInfinity, "-Inf"}};
  for (const GeneralRow& row : rows) EXPECT_EQ(GeneralForm(row.Value), row.Expected);
}

TEST(GeneralForm, IsThePrintfFormOfEveryFiniteFloat) {
  std::mt19937 random(3);
  std::uniform_int_distribution<std::uint32_t> bits;
  for (int i = 0; i < 200000; ++i) {
    const float value = std::bit_cast<float>(bits(random));
    if (!std::isfinite(value)) continue;
    char expected[64];
    std::snprintf(expected, sizeof expected, "%.7G", double{value});
    ASSERT_EQ(GeneralForm(value), expected);
  }
}

}  // namespace
