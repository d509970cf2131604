// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "python/Column.h"
#include "reports/ReportList.h"
#include "reports/Table.h"

namespace python {

// A table that is kept, column by column.
class ColumnTable : public reports::TableOutput {
 public:
  // Without rows, of the columns of a report, which lasts as long.
  explicit ColumnTable(const reports::ReportInfo& report);

  void Begin(std::span<const std::string_view> /*columns*/) override {}
  void Text(std::string_view text) override { Next().AddText(text); }
  void Number(std::int64_t number) override { Next().AddInteger(number); }
  void Number(float number) override { Next().AddSingle(number); }
  void Number(double number) override { Next().AddDouble(number); }
  void Missing() override { Next().AddMissing(); }
  void EndRow() override;
  void BeginRowsWith(std::span<const std::string_view> texts) override;
  void DropRow() override;
  void End() override {}
  using TableOutput::Number;

  // Puts the rows of another table of the same report behind those of this one.
  void Append(ColumnTable&& other);

  std::size_t RowCount() const { return rows_; }
  std::span<const std::string_view> Names() const { return names_; }
  const std::vector<Column>& Columns() const { return columns_; }

 private:
  // The column of the next value of the row; the first ones are filled with what each row begins
  // with.
  Column& Next();

  std::span<const std::string_view> names_;
  std::vector<Column> columns_;
  std::vector<std::string_view> shared_;
  std::size_t column_ = 0;  // of the next value
  std::size_t rows_ = 0;    // that are whole
};

}  // namespace python
