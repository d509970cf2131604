// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// How numbers are printed. No form depends on the user's language: the decimal sign is a point.
// Values are rounded on their exact value, ties away from zero; a value below zero keeps its minus
// sign even where all its printed digits are 0. "NaN", "Inf" and "-Inf" stand for themselves in
// every form.
namespace modAllPurposeNumbers {

// A fixed form such as "00.00000": blanks that are printed as they stand, then one digit place a
// character, "0" for a digit that is always shown and "#" for one shown only when significant.
class NumberPattern {
 public:
  // `pattern` is optional blanks, digit places and, where it has decimals, a point and their
  // places ("0" before "#"). At most 12 decimals and 16 integer places.
  constexpr explicit NumberPattern(std::string_view pattern);

  constexpr std::size_t LeadingBlanks() const { return leadingBlanks_; }
  constexpr std::size_t LeastIntegerDigits() const { return leastIntegerDigits_; }
  constexpr std::size_t LeastDecimals() const { return leastDecimals_; }
  constexpr std::size_t MostDecimals() const { return mostDecimals_; }

 private:
  std::size_t leadingBlanks_ = 0;
  std::size_t leastIntegerDigits_ = 0;
  std::size_t leastDecimals_ = 0;
  std::size_t mostDecimals_ = 0;
};

constexpr NumberPattern::NumberPattern(std::string_view pattern) {
  bool decimals = false;
  for (const char place : pattern) {
    if (place == ' ') {
      ++leadingBlanks_;
    } else if (place == '.') {
      decimals = true;
    } else if (decimals) {
      ++mostDecimals_;
      leastDecimals_ += place == '0' ? 1 : 0;
    } else {
      leastIntegerDigits_ += place == '0' ? 1 : 0;
    }
  }
}

// Appends `value` in the form of `pattern` to `text`. A value with more integer digits than the
// pattern shows them all.
void AppendNumber(std::string& text, const NumberPattern& pattern, double value);

// `value` in the form of `pattern`.
std::string FormatNumber(const NumberPattern& pattern, double value);

// Up to seven significant digits, no padding, an exponent where the number is very large or very
// small: 120, 0.008333334, -1, 1E+07.
std::string GeneralForm(float value);

// The number that `text` begins with, blanks in front of it aside; 0 where it begins with none.
double LeadingNumber(std::string_view text);

}  // namespace modAllPurposeNumbers
