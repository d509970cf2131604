// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace visit {

struct CsvRecord {
  std::int64_t Line = 1;  // the one that it begins on, from 1
  std::vector<std::string> Fields;
};

// The records of comma-separated values (RFC 4180), lines ended by LF or CR LF, one after the
// other. Empty lines are passed over.
class CsvRecords {
 public:
  explicit CsvRecords(std::string_view text) : text_(text) {}

  // None behind the last one. A NormalFault is thrown for a quote that is not closed and for
  // anything behind a closed one.
  std::optional<CsvRecord> Next();

 private:
  std::string PlainField();
  std::string QuotedField();
  // Passes over the end of a line; whether there was one.
  bool PassLineEnd();

  std::string_view text_;  // what is left
  std::int64_t line_ = 1;
};

}  // namespace visit
