// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/ColumnTypes.h"

#include <algorithm>
#include <array>

namespace python {

namespace {

constexpr std::array<std::string_view, 17> kTexts = {
    "file", "field", "group",       "parameter", "type",    "dimensions",
    "kind", "label", "description", "unit",      "measure", "variable",
    "side", "code",  "severity",    "place",     "message"};
constexpr std::array<std::string_view, 9> kIntegers = {
    "index", "number", "stride", "percent", "frame", "sample", "n", "left_n", "right_n"};

// The reports whose numbers are worked out in 64 bits, or of several kinds.
constexpr std::array<std::string_view, 6> kOfDoubles = {"header",      "summary", "visit",
                                                        "variability", "norms",   "scores"};

template <typename Names>
bool Holds(const Names& names, std::string_view name) {
  return std::ranges::find(names, name) != names.end();
}

}  // namespace

ColumnType TypeOfColumn(std::string_view report, std::string_view column) {
  if (report == "parameters" && column == "value") return ColumnType::Any;
  // Measures have no percent there.
  if (report == "norms" && column == "percent") return ColumnType::Double;
  if (Holds(kTexts, column) || column == "component") return ColumnType::Text;
  if (Holds(kIntegers, column)) return ColumnType::Integer;
  return Holds(kOfDoubles, report) ? ColumnType::Double : ColumnType::Single;
}

}  // namespace python
