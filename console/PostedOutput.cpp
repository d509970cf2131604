// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/PostedOutput.h"

#include <cstddef>

#include "console/Escapes.h"
#include "console/Start.h"

namespace console {

namespace {

constexpr std::size_t kPieceSize = std::size_t{256} * 1024;

}  // namespace

Reader ReaderOf(std::FILE* output) {
  return IsTerminal(output) ? Reader::Terminal : Reader::Program;
}

void PostedOutput::BeginReport() {
  if (!heading_.empty()) Line(heading_);
}

void PostedOutput::AppendOutput(std::string_view text, bool /*paneOnly*/, bool continueLine) {
  if (reader_ == Reader::Terminal) {
    pending_ += whole_ == Whole::Line ? Escaped(text) : EscapedLines(text);
  } else {
    pending_ += text;
  }
  if (!continueLine) pending_ += '\n';
  const bool isWhole = !continueLine || whole_ == Whole::Append;
  if (isWhole && pending_.size() >= kPieceSize) Flush();
}

void PostedOutput::Flush() {
  if (!pending_.empty()) post_(std::exchange(pending_, {}));
}

}  // namespace console
