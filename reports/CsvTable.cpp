// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/CsvTable.h"

#include <cmath>

#include <fmt/format.h>

#include "support/ShortestNumber.h"

namespace reports {

using modAllPurpose::AppendShortest;
using modAllPurpose::kRoomOfFloat;
using modAllPurpose::PutShortest;

void CsvTable::Separate() {
  if (!atStart_) Append(",");
  atStart_ = false;
}

char* CsvTable::Room(std::size_t size) {
  if (line_.size() - used_ < size) line_.resize(2 * (used_ + size));
  return line_.data() + used_;
}

void CsvTable::Append(std::string_view text) {
  text.copy(Room(text.size()), text.size());
  used_ += text.size();
}

void CsvTable::Begin(std::span<const std::string_view> columns) {
  for (const std::string_view column : columns) Text(column);
  EndRow();
}

void CsvTable::Text(std::string_view text) {
  Separate();
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
    Append(text);
  } else {
    AppendQuoted(text);
  }
}

void CsvTable::AppendQuoted(std::string_view text) {
  Append("\"");
  for (const char& character : text) {
    if (character == '"') Append("\"");
    Append({&character, 1});
  }
  Append("\"");
}

void CsvTable::Number(std::int64_t number) {
  Separate();
  const fmt::format_int digits(number);
  Append({digits.data(), digits.size()});
}

void CsvTable::Number(float number) { Numbers({&number, 1}); }

void CsvTable::Number(double number) {
  Separate();
  if (!std::isfinite(number)) return;
  std::string digits;
  AppendShortest(digits, number);
  Append(digits);
}

// What a table of samples is made of: written at its place, with nothing in between.
void CsvTable::Numbers(std::span<const float> numbers) {
  char* const begin = Room(numbers.size() * (kRoomOfFloat + 1));
  char* end = begin;
  for (const float number : numbers) {
    *end = ',';
    end += atStart_ ? 0 : 1;
    atStart_ = false;
    if (std::isfinite(number)) end = PutShortest(end, number);
  }
  used_ += static_cast<std::size_t>(end - begin);
}

void CsvTable::BeginRowsWith(std::span<const std::string_view> texts) {
  DropRow();
  for (const std::string_view text : texts) Text(text);
  sharedSize_ = used_;
  rowsShare_ = !texts.empty();
}

void CsvTable::EndRow() {
  output_.Line({line_.data(), used_});
  used_ = sharedSize_;
  atStart_ = !rowsShare_;
}

void CsvTable::DropRow() {
  used_ = 0;
  sharedSize_ = 0;
  rowsShare_ = false;
  atStart_ = true;
}

}  // namespace reports
