// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/ShortestNumber.h"

#include <iterator>

#include <fmt/compile.h>
#include <fmt/format.h>

namespace reports {

void AppendShortest(std::string& text, float number) {
  fmt::format_to(std::back_inserter(text), FMT_COMPILE("{}"), number);
}

void AppendShortest(std::string& text, double number) {
  fmt::format_to(std::back_inserter(text), FMT_COMPILE("{}"), number);
}

}  // namespace reports
