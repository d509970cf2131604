// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/BinaryFile.h"

#include <algorithm>

#include "c3d/StoredNumbers.h"
#include "support/Arithmetic.h"
#include "support/RuntimeError.h"
#include "support/StoppableWork.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;

void BinaryFile::Open(const std::string& path) {
  Close();
  file_.Open(path);
}

void BinaryFile::Close() noexcept {
  file_.Close();
  offset_ = 0;
  ForgetBuffer();
}

std::int32_t BinaryFile::Position() const {
  return modAllPurposeNumbers::ToLong(static_cast<std::int64_t>(offset_) + 1);
}

std::uint8_t BinaryFile::ReadByte() { return std::to_integer<std::uint8_t>(Read(1)[0]); }

std::int16_t BinaryFile::ReadInteger() { return StoredInteger(Read(2).first<2>()); }

std::uint32_t BinaryFile::ReadSingleBits() { return StoredSingleBits(Read(4).first<4>()); }

std::string BinaryFile::ReadText(std::size_t size) {
  return modAllPurpose::FromWindows1252(Read(size));
}

void BinaryFile::Skip(std::uint64_t count) {
  RequireLeft(count);
  offset_ += count;
}

void BinaryFile::RequireLeft(std::uint64_t count) const {
  if (IsBuffered(count)) return;
  const std::uint64_t size = file_.Size();
  if (offset_ > size || count > size - offset_) throw RuntimeError(ErrorNumber::InputPastEndOfFile);
}

void BinaryFile::ForgetBuffer() {
  bufferOffset_ = 0;
  bufferedBytes_ = 0;
}

void BinaryFile::Fill(std::size_t count) {
  modAllPurpose::StoppableWork::EndIfStopped();
  // A large claim is held against the file before memory is taken for it.
  if (count > readAhead_) RequireLeft(count);
  const std::size_t wanted = std::max(count, readAhead_);
  if (buffer_.size() < wanted) buffer_.resize(wanted);
  bufferOffset_ = offset_;
  bufferedBytes_ = 0;
  bufferedBytes_ = file_.ReadAt(offset_, std::span(buffer_).first(wanted));
  if (bufferedBytes_ < count) throw RuntimeError(ErrorNumber::InputPastEndOfFile);
}

}  // namespace modVantrel
