// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/ShortestNumber.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <iterator>

#include <fmt/compile.h>
#include <fmt/format.h>

namespace modAllPurpose {

namespace {

constexpr int kMantissaBits = 23;
constexpr std::uint32_t kImplicitBit = std::uint32_t{1} << kMantissaBits;
constexpr std::uint32_t kSignBit = std::uint32_t{1} << 31;
constexpr int kExponentOfUnit = 127 + kMantissaBits;  // as stored, where a mantissa counts units

// The exponents whose arithmetic below fits 64 bits: floats from 2^-13 to below 2^24.
constexpr int kLeastExponent = -36;

constexpr auto kPowersOfTen = [] {
  std::array<std::uint64_t, 17> powers{};
  std::uint64_t power = 1;
  for (auto& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

std::uint64_t PowerOfTen(int exponent) { return kPowersOfTen[static_cast<std::size_t>(exponent)]; }

// Digits / 10^Decimals.
struct Decimal {
  std::uint32_t Digits = 0;
  int Decimals = 0;
};

// The least n with 10^-n <= 2^exponent.
int LeastDecimals(int exponent) {
  constexpr std::int64_t kLog10Of2 = 1292913986;  // in units of 2^-32
  return static_cast<int>(-((exponent * kLog10Of2) >> 32));
}

// The shortest decimal that reads back to mantissa * 2^exponent, zeros at its end aside; of several
// the nearest. A unit of its last place is at most as wide as the gap between two floats, and ten
// of them are wider: so it is the nearest multiple of ten, where that is near enough, or else the
// nearest unit. Worked out exactly, in 2^-bits of a unit. The gaps on both sides must be equal.
Decimal ShortestOf(std::uint32_t mantissa, int exponent) {
  const int decimals = LeastDecimals(exponent);
  const int bits = 1 - exponent;
  const std::uint64_t halfGap = PowerOfTen(decimals);
  const std::uint64_t value = 2 * halfGap * mantissa;
  const std::uint64_t below = value >> bits;
  const std::uint64_t tens = (below + 5) / 10 * 10;
  const std::uint64_t fromTens = tens > below ? (tens << bits) - value : value - (tens << bits);
  // Halfway to the next float reads back to the even mantissa.
  const bool tensReadBack = fromTens <= halfGap - mantissa % 2;
  const std::uint64_t doubledRest = 2 * (value - (below << bits));
  const std::uint64_t nearest =
      below + (doubledRest + below % 2 > std::uint64_t{1} << bits ? 1 : 0);
  return {static_cast<std::uint32_t>(tensReadBack ? tens : nearest), decimals};
}

// The eight digits of a number, the first one in the lowest byte.
std::uint64_t EightDigits(std::uint32_t number) {
  std::uint64_t digits = (number / 10000) | (std::uint64_t{number % 10000} << 32);
  std::uint64_t tens = ((digits * 10486) >> 20) & 0x0000007F0000007F;
  digits = tens | ((digits - 100 * tens) << 16);
  tens = ((digits * 103) >> 10) & 0x000F000F000F000F;
  return tens | ((digits - 10 * tens) << 8);
}

constexpr std::uint64_t kEightZeros = 0x3030303030303030;
constexpr int kBlock = 8;

char* PutBlock(char* place, std::uint64_t characters, int count) {
  std::memcpy(place, &characters, sizeof characters);
  return place + count;
}

// A number below 10^8 without zeros in front.
char* PutWhole(char* place, std::uint32_t number) {
  const std::uint64_t digits = EightDigits(number);
  const int zeros = std::countr_zero(digits | (std::uint64_t{1} << 56)) / 8;
  return PutBlock(place, (digits | kEightZeros) >> (8 * zeros), kBlock - zeros);
}

// The point and eight digits, without the zeros at their end; nothing where all are zeros.
char* PutFraction(char* place, std::uint32_t eightDecimals) {
  const std::uint64_t digits = EightDigits(eightDecimals);
  const int count = kBlock - std::countl_zero(digits) / 8;
  *place = '.';
  PutBlock(place + 1, digits | kEightZeros, kBlock);
  return place + (count > 0 ? 1 + count : 0);
}

// The same of sixteen digits, whose last eight are not all zeros.
char* PutLongFraction(char* place, std::uint64_t sixteenDecimals) {
  constexpr std::uint64_t kHalf = 100'000'000;
  *place = '.';
  place = PutBlock(place + 1,
                   EightDigits(static_cast<std::uint32_t>(sixteenDecimals / kHalf)) | kEightZeros,
                   kBlock);
  const auto last = EightDigits(static_cast<std::uint32_t>(sixteenDecimals % kHalf));
  return PutBlock(place, last | kEightZeros, kBlock - std::countl_zero(last) / 8);
}

// `whole` is the integer part of `decimal`.
char* PutDecimal(char* place, const Decimal& decimal, std::uint32_t whole) {
  const std::uint64_t fraction = decimal.Digits - whole * PowerOfTen(decimal.Decimals);
  place = PutWhole(place, whole);
  if (decimal.Decimals <= kBlock) {
    const std::uint64_t eight = fraction * PowerOfTen(kBlock - decimal.Decimals);
    return PutFraction(place, static_cast<std::uint32_t>(eight));
  }
  const std::uint64_t sixteen = fraction * PowerOfTen(2 * kBlock - decimal.Decimals);
  const std::uint64_t eight = sixteen / PowerOfTen(kBlock);
  if (sixteen % PowerOfTen(kBlock) == 0) {
    return PutFraction(place, static_cast<std::uint32_t>(eight));
  }
  return PutLongFraction(place, sixteen);
}

}  // namespace

// What coordinates and times are is worked out here: whole numbers and no branch that depends on
// the digits, so that a table of floats costs no more than their fixed forms.
char* PutShortest(char* place, float number) {
  const auto bits = std::bit_cast<std::uint32_t>(number);
  const std::uint32_t magnitude = bits & ~kSignBit;
  const int exponent = static_cast<int>(magnitude >> kMantissaBits) - kExponentOfUnit;
  const std::uint32_t fraction = magnitude & (kImplicitBit - 1);
  *place = '-';
  if (magnitude == 0) {
    place[bits >> 31] = '0';
    return place + (bits >> 31) + 1;
  }
  const bool isUsual = exponent >= kLeastExponent && exponent <= 0 && fraction != 0;
  if (std::endian::native != std::endian::little || !isUsual) {
    return fmt::format_to(place, FMT_COMPILE("{}"), number);
  }
  const std::uint32_t mantissa = fraction | kImplicitBit;
  // A decimal that reads back to this float has its integer part: every integer here is a float.
  const auto whole = static_cast<std::uint32_t>(std::uint64_t{mantissa} >> -exponent);
  return PutDecimal(place + (bits >> 31), ShortestOf(mantissa, exponent), whole);
}

void AppendShortest(std::string& text, float number) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): filled before it is read
  std::array<char, kRoomOfFloat> room;
  text.append(room.data(), PutShortest(room.data(), number));
}

void AppendShortest(std::string& text, double number) {
  fmt::format_to(std::back_inserter(text), FMT_COMPILE("{}"), number);
}

}  // namespace modAllPurpose
