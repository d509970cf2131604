// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "support/ReportOutput.h"
#include "support/RuntimeError.h"

namespace console {

// Thrown when nobody reads the tool's output any more; the tool then ends without a word.
struct OutputClosed {};

// What becomes of a report that the output cannot take: it ends, or it loses its lines and goes on,
// since its work is something else.
enum class Unwritten { EndsReport, LosesLines };

// A report on the tool's standard output, lines ended by LF, handed over in large pieces of whole
// lines.
class StandardOutput : public modAllPurpose::ReportOutput {
 public:
  // `stream` must last as long.
  explicit StandardOutput(std::FILE* stream, Unwritten unwritten = Unwritten::EndsReport)
      : stream_(stream), unwritten_(unwritten) {}

  void BeginReport() override {}
  void AppendOutput(std::string_view text, bool paneOnly, bool continueLine) override;

  // Adds lines that were made elsewhere.
  void Append(std::string text);

  // Hands over what is left. An error as FileErrorFromErrno where standard output cannot take it,
  // OutputClosed where it is a closed pipe; neither where the report may lose its lines. The other
  // members hand over on their own and fail in the same way.
  void Flush();

  // Why the report lost lines. Nothing where it lost none, or where it was a closed pipe: nobody
  // wanted them.
  const std::optional<modAllPurpose::RuntimeError>& LostLines() const { return lostLines_; }

 private:
  void FlushLines();
  void Print(const std::string& piece);
  void HandOver(const std::string& piece);

  std::FILE* stream_;
  Unwritten unwritten_;
  std::optional<modAllPurpose::RuntimeError> lostLines_;
  std::string pending_;
};

}  // namespace console
