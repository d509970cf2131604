// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "reports/TextTable.h"
#include "support/ReportOutput.h"

namespace reports {

// A table as one JSON array of objects, one row a line, each value under its column's name. A
// missing value is null. The array is valid from Begin to End, however many rows come.
class JsonTable : public TextTable {
 public:
  // `output` must last as long.
  explicit JsonTable(modAllPurpose::ReportOutput& output);
  ~JsonTable() override;

  void Begin(std::span<const std::string_view> columns) override;
  void BeginPart(std::span<const std::string_view> columns) override;
  void AddPart(std::string_view text) override;
  void Text(std::string_view text) override;
  void Number(std::int64_t number) override;
  void Number(float number) override;
  void Number(double number) override;
  void Missing() override;
  void BeginRowsWith(std::span<const std::string_view> texts) override;
  void EndRow() override;
  void DropRow() override;
  void End() override;
  using TableOutput::Number;

 private:
  class Writer;

  void Name();
  void Put(std::string_view text);
  template <typename Float>
  void FloatNumber(Float number);

  modAllPurpose::ReportOutput& output_;
  std::unique_ptr<Writer> writer_;
  std::vector<std::string_view> columns_;
  std::size_t column_ = 0;                // of the next value
  std::vector<std::string_view> shared_;  // what each row begins with
  bool isFirstRow_ = true;
  std::string number_;
  std::string row_;  // with what separates it from the one before
};

}  // namespace reports
