// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <utility>

#include "support/OrderedWork.h"
#include "support/ReportOutput.h"

namespace console {

// What of a report must not be printed by halves: a line, or whatever it hands over at a time, as
// rows of a table that bring what separates them.
enum class Whole { Line, Append };

// Who reads a report. At a terminal, control characters of names and labels stand as escapes: they
// would move and dress what stands around them. A program gets every byte.
enum class Reader { Program, Terminal };
Reader ReaderOf(std::FILE* output);

// A report that one of several threads makes, lines ended by LF, posted in large pieces. It is cut
// between wholes alone, so that what is printed stands also where no more follows.
class PostedOutput : public modAllPurpose::ReportOutput {
 public:
  // `heading` is a line to put in front of the report; empty for none. `post` must last as long.
  // What is handed over at a time is one line at most where a line is the whole.
  PostedOutput(const modAllPurpose::PostPiece& post, Whole whole, Reader reader,
               std::string heading = {})
      : post_(post), whole_(whole), reader_(reader), heading_(std::move(heading)) {}

  void BeginReport() override;
  void AppendOutput(std::string_view text, bool paneOnly, bool continueLine) override;

  // Posts what is left.
  void Flush();

 private:
  const modAllPurpose::PostPiece& post_;
  Whole whole_;
  Reader reader_;
  std::string heading_;
  std::string pending_;
};

}  // namespace console
