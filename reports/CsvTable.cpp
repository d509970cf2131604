// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/CsvTable.h"

#include <cmath>
#include <iterator>

#include <fmt/format.h>

#include "reports/ShortestNumber.h"

namespace reports {

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
  fmt::format_to(std::back_inserter(line_), "{}", number);
}

void CsvTable::Number(float number) {
  Separate();
  if (std::isfinite(number)) AppendShortest(line_, number);
}

void CsvTable::Number(double number) {
  Separate();
  if (std::isfinite(number)) AppendShortest(line_, number);
}

void CsvTable::EndRow() {
  output_.Line(line_);
  DropRow();
}

void CsvTable::DropRow() {
  line_.clear();
  atStart_ = true;
}

}  // namespace reports
