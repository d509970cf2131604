// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/StandardOutput.h"

#include <cerrno>
#include <utility>

#include "console/Start.h"
#include "support/RuntimeError.h"

namespace console {

namespace {

constexpr std::size_t kPieceSize = std::size_t{256} * 1024;

}  // namespace

void StandardOutput::AppendOutput(std::string_view text, bool /*paneOnly*/, bool continueLine) {
  pending_ += text;
  if (!continueLine) pending_ += '\n';
  if (pending_.size() >= kPieceSize) FlushLines();
}

void StandardOutput::Append(std::string text) {
  if (pending_.empty()) {
    pending_ = std::move(text);
  } else {
    pending_ += text;
  }
  if (pending_.size() >= kPieceSize) FlushLines();
}

void StandardOutput::Flush() { Print(std::exchange(pending_, {})); }

void StandardOutput::FlushLines() {
  const auto end = pending_.rfind('\n');
  if (end == std::string::npos) return;
  std::string rest = pending_.substr(end + 1);
  pending_.resize(end + 1);
  Print(std::exchange(pending_, std::move(rest)));
}

void StandardOutput::Print(const std::string& piece) {
  try {
    HandOver(piece);
  } catch (const OutputClosed&) {
    if (unwritten_ == Unwritten::EndsReport) throw;
  } catch (const modAllPurpose::RuntimeError& error) {
    if (unwritten_ == Unwritten::EndsReport) throw;
    lostLines_ = error;
  }
}

void StandardOutput::HandOver(const std::string& piece) {
  if (WriteLines(stream_, piece)) return;
  if (IsOutputClosed()) throw OutputClosed();
  throw modAllPurpose::FileErrorFromErrno(errno);
}

}  // namespace console
