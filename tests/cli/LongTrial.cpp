// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/LongTrial.h"

#include <cstdint>
#include <vector>

#include <fmt/format.h>

namespace tests {

namespace {

constexpr int kLongParams = 120;
constexpr int kValuesOfEach = 250;

}  // namespace

sample::TrialBuilder LongTrial() {
  sample::TrialBuilder builder;
  for (int i = 1; i <= kLongParams; ++i) {
    builder.SetParam("LONG", {fmt::format("P{}", i),
                              {kValuesOfEach},
                              std::vector<std::uint8_t>(kValuesOfEach, 7),
                              "",
                              false,
                              {}});
  }
  return builder;
}

std::string ReportOfLongGroup() {
  std::string text = "LONG\n";
  for (int i = 1; i <= kLongParams; ++i) {
    text += fmt::format("  P{}\n", i);
    for (int k = 1; k <= kValuesOfEach; ++k) {
      text += fmt::format("    {:<30}7\n", fmt::format("byt({},1,1,1,1,1,1)", k));
    }
  }
  return text;
}

}  // namespace tests
