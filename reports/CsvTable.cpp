// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/CsvTable.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include "support/ShortestNumber.h"

namespace reports {

using modAllPurpose::AppendShortest;
using modAllPurpose::kRoomOfFloat;
using modAllPurpose::PutShortest;

namespace {

void AppendField(std::string& line, std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
    line += text;
    return;
  }
  line += '"';
  for (const char character : text) {
    if (character == '"') line += '"';
    line += character;
  }
  line += '"';
}

}  // namespace

void CsvTable::Separate() {
  if (!atStart_) line_ += ',';
  atStart_ = false;
}

void CsvTable::Begin(std::span<const std::string_view> columns) {
  for (const std::string_view column : columns) Text(column);
  EndRow();
}

void CsvTable::Text(std::string_view text) {
  Separate();
  AppendField(line_, text);
}

void CsvTable::Number(std::int64_t number) {
  Separate();
  const fmt::format_int digits(number);
  line_.append(digits.data(), digits.size());
}

void CsvTable::Number(float number) {
  Separate();
  if (std::isfinite(number)) AppendShortest(line_, number);
}

void CsvTable::Number(double number) {
  Separate();
  if (std::isfinite(number)) AppendShortest(line_, number);
}

void CsvTable::BeginRowsWith(std::span<const std::string_view> texts) {
  DropRow();
  for (const std::string_view text : texts) Text(text);
  sharedSize_ = line_.size();
  rowsShare_ = !texts.empty();
}

void CsvTable::Numbers(std::span<const float> numbers) {
  constexpr std::size_t kAtATime = 8;
  std::array<char, kAtATime*(kRoomOfFloat + 1)> fields;
  while (!numbers.empty()) {
    char* end = fields.data();
    for (const float number : numbers.first(std::min(kAtATime, numbers.size()))) {
      if (!atStart_) *end++ = ',';
      atStart_ = false;
      if (std::isfinite(number)) end = PutShortest(end, number);
    }
    line_.append(fields.data(), end);
    numbers = numbers.subspan(std::min(kAtATime, numbers.size()));
  }
}

void CsvTable::EndRow() {
  output_.Line(line_);
  line_.resize(sharedSize_);
  atStart_ = !rowsShare_;
}

void CsvTable::DropRow() {
  line_.clear();
  sharedSize_ = 0;
  rowsShare_ = false;
  atStart_ = true;
}

}  // namespace reports
