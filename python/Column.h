// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "python/ColumnTypes.h"

namespace python {

// Texts of which many are equal, each different one kept once.
struct TextColumn {
  static constexpr std::int32_t kMissing = -1;

  std::vector<std::string> Texts;  // the different ones, in the order of their first rows
  std::vector<std::int32_t> Rows;  // which of them stands in each row, or kMissing
  std::map<std::string, std::int32_t, std::less<>> Places;  // of the texts

  void Add(std::string_view text);
};

// A value of a column of several kinds; none where it is missing.
using AnyValue = std::variant<std::monostate, std::string, std::int64_t, double>;

using ColumnValues = std::variant<TextColumn, std::vector<std::int64_t>, std::vector<float>,
                                  std::vector<double>, std::vector<AnyValue>>;

// The values of one column, row after row. A number that is not finite is missing, as in every
// table, and a missing number is NaN. Throws std::logic_error for a value that is not of the
// column's type: a column must not lose anything of what comes.
class Column {
 public:
  explicit Column(ColumnType type);

  void AddText(std::string_view text);
  void AddInteger(std::int64_t number);
  void AddSingle(float number);
  void AddDouble(double number);
  void AddMissing();

  // Puts the rows of a column of the same type behind those of this one.
  void Append(const Column& other);
  // Forgets what stands behind the first `rows`.
  void CutTo(std::size_t rows);

  const ColumnValues& Values() const { return values_; }

 private:
  ColumnValues values_;
};

}  // namespace python
