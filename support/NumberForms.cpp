// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/NumberForms.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>

#include <fmt/format.h>

namespace modAllPurposeNumbers {

namespace {

__extension__ using Wide = unsigned __int128;

constexpr int kMantissaBits = 52;
constexpr int kExponentBias = 1023;
constexpr unsigned kExponentMask = 0x7FF;

constexpr auto kPowersOfTen = [] {
  std::array<std::uint64_t, NumberPattern::kMostDecimals + 1> powers{};
  std::uint64_t power = 1;
  for (auto& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

// The digits of a number before and, as a whole number, behind its decimal point.
struct FixedDigits {
  std::uint64_t Integer = 0;
  std::uint64_t Decimals = 0;
};

// fraction / 2^bits in units of 10^-decimals, a tie rounded up. `fraction` is below 2^bits.
std::uint64_t RoundedFraction(std::uint64_t fraction, int bits, std::uint64_t power) {
  if (bits < 64 && fraction <= UINT64_MAX / power) {
    const std::uint64_t scaled = fraction * power;
    return (scaled >> bits) + ((scaled >> (bits - 1)) & 1U);
  }
  if (bits > 127) return 0;
  const Wide scaled = Wide{fraction} * power;
  return static_cast<std::uint64_t>((scaled >> bits) + ((scaled >> (bits - 1)) & 1U));
}

// Splits a finite magnitude below 2^53 into its digits, rounded to `decimals` places on the exact
// value, ties away from zero.
FixedDigits RoundedDigits(double magnitude, std::size_t decimals) {
  const auto bits = std::bit_cast<std::uint64_t>(magnitude);
  const auto exponent = static_cast<int>((bits >> kMantissaBits) & kExponentMask);
  std::uint64_t mantissa = bits & ((std::uint64_t{1} << kMantissaBits) - 1);
  if (exponent != 0) mantissa |= std::uint64_t{1} << kMantissaBits;
  if (mantissa == 0) return {};
  // magnitude = mantissa / 2^fractionBits, with the mantissa's trailing zeros taken out.
  int fractionBits = kExponentBias + kMantissaBits - std::max(exponent, 1);
  const int zeros = std::min(std::countr_zero(mantissa), fractionBits);
  mantissa >>= zeros;
  fractionBits -= zeros;
  if (fractionBits == 0) return {mantissa, 0};

  const std::uint64_t integer = fractionBits < 64 ? mantissa >> fractionBits : 0;
  const std::uint64_t fraction =
      fractionBits < 64 ? mantissa - (integer << fractionBits) : mantissa;
  const std::uint64_t power = kPowersOfTen[decimals];
  const std::uint64_t rounded = RoundedFraction(fraction, fractionBits, power);
  return rounded == power ? FixedDigits{integer + 1, 0} : FixedDigits{integer, rounded};
}

constexpr auto kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

// Puts a printed number together from its last character to its first, so that it reaches a text in
// one piece.
class BackwardWriter {
 public:
  // Characters there is room for: blanks, the sign, a number below 2^53, which has no more digits
  // than a pattern may have places, the point and the decimals.
  static constexpr std::size_t kRoom = NumberPattern::kMostBlanks +
                                       NumberPattern::kMostIntegerPlaces +
                                       NumberPattern::kMostDecimals + 2;

  void Put(char character) {
    if (first_ > 0) characters_[--first_] = character;
  }

  void Put(std::size_t count, char character) {
    for (std::size_t i = 0; i < count; ++i) Put(character);
  }

  // Exactly `width` digits of `number`, the last ones.
  void PutLastDigits(std::uint64_t number, std::size_t width) {
    for (; width >= 2; width -= 2, number /= 100) PutPair(number % 100);
    if (width == 1) Put(static_cast<char>('0' + number % 10));
  }

  // All digits of `number`, and zeros before them up to `least` digits.
  void PutNumber(std::uint64_t number, std::size_t least) {
    const std::size_t before = first_;
    for (; number >= 100; number /= 100) PutPair(number % 100);
    if (number >= 10) {
      PutPair(number);
    } else if (number > 0) {
      Put(static_cast<char>('0' + number));
    }
    const std::size_t written = before - first_;
    if (written < least) Put(least - written, '0');
  }

  std::string_view Text() const { return {characters_.data() + first_, kRoom - first_}; }

 private:
  void PutPair(std::uint64_t pair) {
    if (first_ < 2) return;
    first_ -= 2;
    std::memcpy(characters_.data() + first_, kDigitPairs.data() + 2 * pair, 2);
  }

  std::array<char, kRoom> characters_{};
  std::size_t first_ = kRoom;
};

void PutDecimals(BackwardWriter& writer, std::uint64_t decimals, const NumberPattern& pattern) {
  std::size_t places = pattern.MostDecimals();
  while (places > pattern.LeastDecimals() && decimals % 10 == 0) {
    decimals /= 10;
    --places;
  }
  if (places == 0) return;
  writer.PutLastDigits(decimals, places);
  writer.Put('.');
}

// Appends "NaN", "Inf" or "-Inf" and answers true where `value` is one of them.
bool AppendNonFinite(std::string& text, double value) {
  if (std::isfinite(value)) return false;
  if (std::isnan(value)) {
    text += "NaN";
  } else {
    text += value < 0 ? "-Inf" : "Inf";
  }
  return true;
}

// Appends a finite number of 2^53 or more, which has no decimals and more digits than any pattern.
void AppendLargeNumber(std::string& text, const NumberPattern& pattern, double value) {
  if (value < 0) text += '-';
  text.append(pattern.LeadingBlanks(), ' ');
  fmt::format_to(std::back_inserter(text), "{:.0f}", std::fabs(value));
  BackwardWriter writer;
  PutDecimals(writer, 0, pattern);
  text += writer.Text();
}

}  // namespace

void AppendNumber(std::string& text, const NumberPattern& pattern, double value) {
  if (AppendNonFinite(text, value)) return;
  const double magnitude = std::fabs(value);
  constexpr double kAllWholeFromHere = 9007199254740992.0;  // 2^53
  if (magnitude >= kAllWholeFromHere) {
    AppendLargeNumber(text, pattern, value);
    return;
  }
  const FixedDigits digits = RoundedDigits(magnitude, pattern.MostDecimals());
  BackwardWriter writer;
  PutDecimals(writer, digits.Decimals, pattern);
  writer.PutNumber(digits.Integer, pattern.LeastIntegerDigits());
  writer.Put(pattern.LeadingBlanks(), ' ');
  if (value < 0) writer.Put('-');
  text += writer.Text();
}

std::string FormatNumber(const NumberPattern& pattern, double value) {
  std::string text;
  AppendNumber(text, pattern, value);
  return text;
}

std::string GeneralForm(float value) {
  std::string text;
  if (AppendNonFinite(text, double{value})) return text;
  constexpr int kSignificantDigits = 7;
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), double{value},
                                 std::chars_format::general, kSignificantDigits);
  text.assign(digits.data(), end.ptr);
  std::replace(text.begin(), text.end(), 'e', 'E');
  return text;
}

double LeadingNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  return parsed.ec == std::errc() && std::isfinite(number) ? number : 0.0;
}

}  // namespace modAllPurposeNumbers
