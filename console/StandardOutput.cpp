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
  if (pending_.size() >= kPieceSize) Flush();
}

void StandardOutput::Append(std::string text) {
  if (pending_.empty()) {
    pending_ = std::move(text);
  } else {
    pending_ += text;
  }
  if (pending_.size() >= kPieceSize) Flush();
}

void StandardOutput::Flush() {
  std::string piece;
  piece.swap(pending_);
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
