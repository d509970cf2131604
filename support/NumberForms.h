// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "support/RuntimeError.h"

// How numbers are printed. No form depends on the user's language: the decimal sign is a point.
// Values are rounded on their exact value, ties away from zero; a value below zero keeps its minus
// sign even where all its printed digits are 0. "NaN", "Inf" and "-Inf" stand for themselves in
// every form.
namespace modAllPurposeNumbers {

// A fixed form such as "00.00000": blanks that are printed as they stand, then one digit place a
// character, "0" for a digit that is always shown and "#" for one shown only when significant.
class NumberPattern {
 public:
  static constexpr std::size_t kMostBlanks = 16;
  static constexpr std::size_t kMostIntegerPlaces = 16;
  static constexpr std::size_t kMostDecimals = 12;

  // `pattern` is optional blanks, digit places ("#" before "0") and, where it has decimals, a point
  // and their places ("0" before "#"), no more of each than the most above. Another pattern does
  // not compile as a constant and is error 9 where the program makes it.
  constexpr explicit NumberPattern(std::string_view pattern);

  constexpr std::size_t LeadingBlanks() const { return leadingBlanks_; }
  constexpr std::size_t LeastIntegerDigits() const { return leastIntegerDigits_; }
  constexpr std::size_t LeastDecimals() const { return leastDecimals_; }
  constexpr std::size_t MostDecimals() const { return mostDecimals_; }

 private:
  // How many places of either kind there are.
  struct Places {
    std::size_t First;
    std::size_t Last;
  };

  static constexpr Places PlacesOf(std::string_view text, char first, char last, std::size_t most);
  [[noreturn]] static void Refuse() {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::SubscriptOutOfRange);
  }

  std::size_t leadingBlanks_ = 0;
  std::size_t leastIntegerDigits_ = 0;
  std::size_t leastDecimals_ = 0;
  std::size_t mostDecimals_ = 0;
};

constexpr NumberPattern::NumberPattern(std::string_view pattern) {
  leadingBlanks_ = std::min(pattern.find_first_not_of(' '), pattern.size());
  const std::size_t point = std::min(pattern.find('.'), pattern.size());
  const auto integer = pattern.substr(leadingBlanks_, point - leadingBlanks_);
  const auto decimals = pattern.substr(std::min(point + 1, pattern.size()));
  leastIntegerDigits_ = PlacesOf(integer, '#', '0', kMostIntegerPlaces).Last;
  const Places places = PlacesOf(decimals, '0', '#', kMostDecimals);
  leastDecimals_ = places.First;
  mostDecimals_ = places.First + places.Last;
  if (leadingBlanks_ > kMostBlanks) Refuse();
}

constexpr NumberPattern::Places NumberPattern::PlacesOf(std::string_view text, char first,
                                                        char last, std::size_t most) {
  const std::size_t count = std::min(text.find_first_not_of(first), text.size());
  if (text.size() > most || text.find_first_not_of(last, count) != std::string_view::npos) Refuse();
  return {count, text.size() - count};
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
