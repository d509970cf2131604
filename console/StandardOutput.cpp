// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/StandardOutput.h"

#include <cerrno>

#include "console/Start.h"
#include "support/RuntimeError.h"

namespace console {

namespace {

constexpr std::size_t kPieceSize = std::size_t{256} * 1024;

}  // namespace

void StandardOutput::BeginReport() {
  if (!heading_.empty()) Line(heading_);
}

void StandardOutput::AppendOutput(std::string_view text, bool /*paneOnly*/, bool continueLine) {
  pending_ += text;
  if (!continueLine) pending_ += '\n';
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
    if (unwritten_ == Unwritten::EndsReport) {
      failure_ = error;
      throw;
    }
    lostLines_ = error;
  }
}

void StandardOutput::HandOver(const std::string& piece) {
  ForgetErrors();
  const bool written = std::fwrite(piece.data(), 1, piece.size(), stream_) == piece.size() &&
                       std::fflush(stream_) == 0;
  if (written) return;
  if (IsOutputClosed()) throw OutputClosed();
  throw modAllPurpose::FileErrorFromErrno(errno);
}

}  // namespace console
