// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/AskedLabels.h"

#include <algorithm>
#include <numeric>

#include <fmt/format.h>

#include "support/Text.h"

namespace reports {

namespace {

// The number of the first label of that name; 0 where there is none.
std::int32_t NumberOf(const modAllPurpose::OneBasedTable<std::string>& labels,
                      const std::string& name) {
  const std::string wanted = modAllPurpose::SearchKey(name);
  for (std::int32_t i = 1; i <= labels.Count(); ++i) {
    if (modAllPurpose::UpperCase(labels[i]) == wanted) return i;
  }
  return 0;
}

}  // namespace

AskedLabels FindAskedLabels(const modAllPurpose::OneBasedTable<std::string>& labels,
                            const TableOptions& options, const std::string& refusal) {
  AskedLabels asked;
  if (options.AllLabels) {
    asked.Numbers.resize(static_cast<std::size_t>(labels.Count()));
    std::iota(asked.Numbers.begin(), asked.Numbers.end(), 1);
    return asked;
  }
  for (const std::string& label : options.Labels) {
    const std::int32_t number = NumberOf(labels, label);
    if (number == 0) {
      asked.Missing.push_back(fmt::format("{}: {}", refusal, label));
    } else {
      asked.Numbers.push_back(number);
    }
  }
  return asked;
}

}  // namespace reports
