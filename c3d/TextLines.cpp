// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/TextLines.h"

#include <span>

#include "support/Text.h"

namespace modVantrel {

namespace {

constexpr std::size_t kPieceSize = std::size_t{16} * 1024;

}  // namespace

void TextLines::Open(const std::string& path) {
  Close();
  file_.Open(path);
}

void TextLines::Close() noexcept {
  file_.Close();
  Rewind();
}

void TextLines::Rewind() {
  offset_ = 0;
  buffer_.clear();
  used_ = 0;
}

bool TextLines::AtEnd() { return !HasByte(); }

std::string TextLines::Next() {
  std::string line;
  while (HasByte() && buffer_[used_] != '\n') line += buffer_[used_++];
  if (HasByte()) ++used_;
  if (line.ends_with('\r')) line.pop_back();
  return modAllPurpose::FromWindows1252(std::as_bytes(std::span(line)));
}

bool TextLines::HasByte() {
  if (used_ < buffer_.size()) return true;
  buffer_.resize(kPieceSize);
  buffer_.resize(file_.ReadAt(offset_, std::as_writable_bytes(std::span(buffer_))));
  offset_ += buffer_.size();
  used_ = 0;
  return !buffer_.empty();
}

}  // namespace modVantrel
