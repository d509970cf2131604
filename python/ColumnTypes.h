// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace python {

// What the values of a column of a table are, in every table of that report alike, whatever its
// rows hold.
enum class ColumnType {
  Text,
  Integer,  // never missing
  Single,   // as stored or worked out in 32 bits
  Double,
  Any,  // whatever the file has there: texts, integers or floats
};

// The type of a column of the table of that report.
ColumnType TypeOfColumn(std::string_view report, std::string_view column);

}  // namespace python
