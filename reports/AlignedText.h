// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "support/ReportOutput.h"

namespace reports {

enum class Align { Left, Right };

// A small table for a person's eye: its columns are as wide as what they hold, two blanks apart. A
// character counts for one, whatever bytes it takes. Control characters of a cell are shown as
// U+FFFD and zeros at its end not at all: a label of a file neither breaks a row nor commands a
// terminal.
class AlignedText {
 public:
  struct Column {
    std::string Heading;
    Align Side = Align::Left;
  };

  explicit AlignedText(std::vector<Column> columns) : columns_(std::move(columns)) {}

  // As many cells as there are columns.
  void AddRow(std::vector<std::string> cells);

  // The headings, where one of them is not empty, then the rows; no line ends in blanks.
  void Print(modAllPurpose::ReportOutput& output) const;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace reports
