// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "support/ReportOutput.h"

namespace cli {

// Thrown when nobody reads the tool's output any more; the tool then ends without a word.
struct OutputClosed {};

// A report on standard output, lines ended by LF, handed over in large pieces.
class StandardOutput : public modAllPurpose::ReportOutput {
 public:
  // `heading` is a line to put in front of the report; empty for none.
  explicit StandardOutput(std::string heading) : heading_(std::move(heading)) {}

  void BeginReport() override;
  void AppendOutput(std::string_view text, bool paneOnly, bool continueLine) override;

  // Hands over what is left. An error as FileErrorFromErrno where standard output cannot take it,
  // OutputClosed where it is a closed pipe. The other members hand over on their own and fail in
  // the same way.
  void Flush();

 private:
  std::string heading_;
  std::string pending_;
};

}  // namespace cli
