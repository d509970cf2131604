// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "reports/TextTable.h"
#include "support/ReportOutput.h"

namespace reports {

// A table as comma-separated values (RFC 4180 with LF): one line of column names, a decimal point,
// quotes only where a text needs them. A missing value is an empty field.
class CsvTable : public TextTable {
 public:
  // `output` must last as long.
  explicit CsvTable(modAllPurpose::ReportOutput& output) : output_(output) {}

  void Begin(std::span<const std::string_view> columns) override;
  void BeginPart(std::span<const std::string_view> /*columns*/) override {}
  void AddPart(std::string_view text) override { output_.Piece(text); }
  void Text(std::string_view text) override;
  void Number(std::int64_t number) override;
  void Number(float number) override;
  void Number(double number) override;
  void Missing() override { Separate(); }
  void BeginRowsWith(std::span<const std::string_view> texts) override;
  void Numbers(std::span<const float> numbers) override;
  void EndRow() override;
  void DropRow() override;
  void End() override {}
  using TableOutput::Number;

 private:
  void Separate();
  void Append(std::string_view text);
  void AppendQuoted(std::string_view text);
  // Where the next `size` characters of the line go.
  char* Room(std::size_t size);

  modAllPurpose::ReportOutput& output_;
  std::string line_;  // as far as it is used
  std::size_t used_ = 0;
  std::size_t sharedSize_ = 0;  // of what each row begins with, which stays in the line
  bool rowsShare_ = false;      // whether they begin with anything
  bool atStart_ = true;         // of a row
};

}  // namespace reports
