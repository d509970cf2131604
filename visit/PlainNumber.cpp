// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/PlainNumber.h"

#include <charconv>
#include <cmath>

namespace visit {

std::optional<double> PlainNumber(std::string_view text) {
  if (text.starts_with("+") && !text.starts_with("+-")) text.remove_prefix(1);
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(number)) return std::nullopt;
  return number;
}

}  // namespace visit
