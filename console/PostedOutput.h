// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "support/OrderedWork.h"
#include "support/ReportOutput.h"

namespace console {

// What of a report must not be printed by halves: a line, or whatever it hands over at a time, as
// rows of a table that bring what separates them.
enum class Whole { Line, Append };

// A report that one of several threads makes, lines ended by LF, posted in large pieces. It is cut
// between wholes alone, so that what is printed stands also where no more follows.
class PostedOutput : public modAllPurpose::ReportOutput {
 public:
  // `heading` is a line to put in front of the report; empty for none. `post` must last as long.
  PostedOutput(const modAllPurpose::PostPiece& post, Whole whole, std::string heading)
      : post_(post), whole_(whole), heading_(std::move(heading)) {}

  void BeginReport() override;
  void AppendOutput(std::string_view text, bool paneOnly, bool continueLine) override;

  // Posts what is left.
  void Flush();

 private:
  const modAllPurpose::PostPiece& post_;
  Whole whole_;
  std::string heading_;
  std::string pending_;
};

}  // namespace console
