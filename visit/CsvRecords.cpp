// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/CsvRecords.h"

#include <algorithm>

#include "visit/NormalFile.h"

namespace visit {

bool CsvRecords::PassLineEnd() {
  const std::size_t length = text_.starts_with("\r\n") ? 2 : (text_.starts_with('\n') ? 1 : 0);
  text_.remove_prefix(length);
  if (length != 0) ++line_;
  return length != 0;
}

std::string CsvRecords::PlainField() {
  std::size_t length = std::min(text_.find_first_of(",\n"), text_.size());
  const bool endsLine = length < text_.size() && text_[length] == '\n';
  if (endsLine && length > 0 && text_[length - 1] == '\r') --length;
  std::string field(text_.substr(0, length));
  text_.remove_prefix(length);
  return field;
}

std::string CsvRecords::QuotedField() {
  const std::int64_t opened = line_;
  std::string field;
  text_.remove_prefix(1);
  for (;;) {
    const std::size_t quote = text_.find('"');
    if (quote == std::string_view::npos) throw NormalFault{opened, "a quote is not closed"};
    const std::string_view piece = text_.substr(0, quote);
    line_ += std::ranges::count(piece, '\n');
    field += piece;
    text_.remove_prefix(quote + 1);
    if (!text_.starts_with('"')) return field;
    field += '"';
    text_.remove_prefix(1);
  }
}

std::optional<CsvRecord> CsvRecords::Next() {
  while (PassLineEnd()) {
  }
  if (text_.empty()) return std::nullopt;
  CsvRecord record{line_, {}};
  for (;;) {
    record.Fields.push_back(text_.starts_with('"') ? QuotedField() : PlainField());
    if (text_.empty() || PassLineEnd()) return record;
    if (!text_.starts_with(',')) throw NormalFault{line_, "text behind a closed quote"};
    text_.remove_prefix(1);
  }
}

}  // namespace visit
