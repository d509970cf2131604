// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/ColumnTable.h"

#include <utility>

namespace python {

ColumnTable::ColumnTable(const reports::ReportInfo& report) : names_(report.Columns) {
  for (const std::string_view name : names_) {
    columns_.emplace_back(TypeOfColumn(report.Name, name));
  }
}

Column& ColumnTable::Next() {
  if (column_ == 0) {
    for (const std::string_view text : shared_) columns_.at(column_++).AddText(text);
  }
  return columns_.at(column_++);
}

void ColumnTable::EndRow() {
  column_ = 0;
  ++rows_;
}

void ColumnTable::BeginRowsWith(std::span<const std::string_view> texts) {
  shared_.assign(texts.begin(), texts.end());
}

void ColumnTable::DropRow() {
  for (Column& column : columns_) column.CutTo(rows_);
  column_ = 0;
  shared_.clear();
}

void ColumnTable::Append(ColumnTable&& other) {
  if (rows_ == 0) {
    columns_ = std::move(other.columns_);
  } else {
    for (std::size_t i = 0; i < columns_.size(); ++i) columns_[i].Append(other.columns_[i]);
  }
  rows_ += std::exchange(other.rows_, 0);
}

}  // namespace python
