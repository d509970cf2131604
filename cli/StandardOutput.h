// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <utility>

#include "support/ReportOutput.h"

namespace cli {

// Thrown when nobody reads the tool's output any more; the tool then ends without a word.
struct OutputClosed {};

// A report on the tool's standard output, lines ended by LF, handed over in large pieces.
class StandardOutput : public modAllPurpose::ReportOutput {
 public:
  // `heading` is a line to put in front of the report; empty for none. `stream` must last as long.
  StandardOutput(std::FILE* stream, std::string heading)
      : stream_(stream), heading_(std::move(heading)) {}

  void BeginReport() override;
  void AppendOutput(std::string_view text, bool paneOnly, bool continueLine) override;

  // Hands over what is left. An error as FileErrorFromErrno where standard output cannot take it,
  // OutputClosed where it is a closed pipe. The other members hand over on their own and fail in
  // the same way.
  void Flush();

 private:
  std::FILE* stream_;
  std::string heading_;
  std::string pending_;
};

}  // namespace cli
