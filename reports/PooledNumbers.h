// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "reports/Table.h"
#include "visit/Statistics.h"

// Numbers worked out over several strides, in tables and for a person's eye.
namespace reports {

// A number, or a missing value.
void NumberOrMissing(TableOutput& table, std::optional<double> number);

// Mean, deviation and number, three values.
void StatisticsValues(TableOutput& table, const visit::Statistics& statistics);

// "1.23" with 2 `decimals`, at most 6; "-" where it is missing or not finite.
std::string NumberText(std::optional<double> number, int decimals);

// "1.23 ± 0.04 (6)"; "1.23 (1)" where there is no deviation, "-" where there is no mean.
std::string StatisticsText(std::optional<double> mean, std::optional<double> deviation,
                           std::int64_t count, int decimals);

// "1.23 (6)", "-" where the number is missing.
std::string CountedText(std::optional<double> number, std::int64_t count, int decimals);

// The decimals that a person wants to see of a measure in this unit: 2 of metres and seconds, 1 of
// degrees, percent and all others.
int DecimalsFor(std::string_view unit);

}  // namespace reports
