// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/PooledNumbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include <fmt/format.h>

#include "support/NumberForms.h"

namespace reports {

using modAllPurposeNumbers::NumberPattern;

void NumberOrMissing(TableOutput& table, std::optional<double> number) {
  if (number) {
    table.Number(*number);
  } else {
    table.Missing();
  }
}

void StatisticsValues(TableOutput& table, const visit::Statistics& statistics) {
  NumberOrMissing(table, statistics.Mean());
  NumberOrMissing(table, statistics.Deviation());
  table.Number(statistics.Count());
}

std::string NumberText(std::optional<double> number, int decimals) {
  static constexpr std::array kPatterns = {NumberPattern("0"),       NumberPattern("0.0"),
                                           NumberPattern("0.00"),    NumberPattern("0.000"),
                                           NumberPattern("0.0000"),  NumberPattern("0.00000"),
                                           NumberPattern("0.000000")};
  if (!number || !std::isfinite(*number)) return "-";
  std::string text = FormatNumber(kPatterns.at(static_cast<std::size_t>(decimals)), *number);
  const bool isZero = text.find_first_of("123456789") == std::string::npos;
  return isZero && text.starts_with('-') ? text.substr(1) : text;
}

std::string StatisticsText(std::optional<double> mean, std::optional<double> deviation,
                           std::int64_t count, int decimals) {
  if (!mean || !deviation) return CountedText(mean, count, decimals);
  return fmt::format("{} ± {} ({})", NumberText(mean, decimals), NumberText(deviation, decimals),
                     count);
}

std::string CountedText(std::optional<double> number, std::int64_t count, int decimals) {
  if (!number) return "-";
  return fmt::format("{} ({})", NumberText(number, decimals), count);
}

int DecimalsFor(std::string_view unit) {
  constexpr std::array<std::string_view, 3> kSmall = {"m", "s", "m/s"};
  return std::ranges::find(kSmall, unit) == kSmall.end() ? 1 : 2;
}

}  // namespace reports
