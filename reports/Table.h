// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace reports {

// Where the rows of a table go, value by value and without being kept. A row has as many values as
// the table has columns. Texts are UTF-8; numbers are written as the shortest text that reads back
// to the same number of their type; one that is not finite counts as missing.
//
// One object takes the rows of one command, of all its files.
class TableOutput {
 public:
  TableOutput() = default;
  TableOutput(const TableOutput&) = delete;
  TableOutput& operator=(const TableOutput&) = delete;
  virtual ~TableOutput() = default;

  // Once, before the first row. The names must last as long as the object.
  virtual void Begin(std::span<const std::string_view> columns) = 0;

  virtual void Text(std::string_view text) = 0;
  virtual void Number(std::int64_t number) = 0;
  virtual void Number(float number) = 0;
  virtual void Number(double number) = 0;
  virtual void Missing() = 0;
  virtual void EndRow() = 0;
  // Every row from here on begins with `texts`, which must last as long: up to the next call, or
  // until a row is dropped. Not inside a row.
  virtual void BeginRowsWith(std::span<const std::string_view> texts) = 0;
  // As if they came one by one.
  virtual void Numbers(std::span<const float> numbers) {
    for (const float number : numbers) Number(number);
  }
  // Forgets the values of a row that was begun, where an error kept it from its end.
  virtual void DropRow() = 0;

  // Once, behind the last row; also where the rows came to an end before their time.
  virtual void End() = 0;

  void Number(std::int32_t number) { Number(std::int64_t{number}); }
  // A text that may be unknown: an empty one is missing.
  void TextOrMissing(std::string_view text) {
    if (text.empty()) {
      Missing();
    } else {
      Text(text);
    }
  }
};

}  // namespace reports
