// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample/Trial.h"

#include <algorithm>
#include <fstream>
#include <ios>

#include "sample/ByteWriter.h"

namespace sample {

namespace {

constexpr std::int32_t kFirstFramePosition = 7;
constexpr std::int32_t kLastFramePosition = 9;
constexpr std::int32_t kBytesBeforeName = 2;
constexpr unsigned kLongestName = 127;

std::size_t Offset(std::int32_t position) { return static_cast<std::size_t>(position) - 1; }

void Write(const std::filesystem::path& path, const std::byte* bytes, std::size_t size) {
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(path, std::ios::binary | std::ios::trunc);
  for (std::size_t i = 0; i < size; ++i) file.put(std::to_integer<char>(bytes[i]));
  file.close();
}

}  // namespace

Trial& Trial::TruncateTo(std::size_t size) {
  bytes_.resize(std::min(size, bytes_.size()));
  return *this;
}

Trial& Trial::SetByte(std::int32_t position, std::uint8_t value) {
  return Overwrite(position, {std::byte{value}});
}

Trial& Trial::SetInteger(std::int32_t position, std::int16_t value) {
  return Overwrite(position, IntegerBytes(value));
}

Trial& Trial::SetSingle(std::int32_t position, float value) {
  return Overwrite(position, SingleBytes(value, processor_));
}

Trial& Trial::ClaimFrames(std::int16_t first, std::int16_t last) {
  return SetInteger(kFirstFramePosition, first).SetInteger(kLastFramePosition, last);
}

Trial& Trial::SetOffset(std::int32_t position, std::int16_t offset) {
  const auto stored = std::to_integer<unsigned>(bytes_.at(Offset(position)));
  const unsigned nameLength = stored > kLongestName ? 256 - stored : stored;
  return SetInteger(position + kBytesBeforeName + static_cast<std::int32_t>(nameLength), offset);
}

void Trial::WriteTo(const std::filesystem::path& path) const {
  Write(path, bytes_.data(), bytes_.size());
}

void Trial::WriteSparseTo(const std::filesystem::path& path) const {
  const std::size_t frontSize = std::min(Offset(frameDataPosition_), bytes_.size());
  Write(path, bytes_.data(), frontSize);
  std::filesystem::resize_file(path, frontSize + frameDataSize_);
}

Trial& Trial::Overwrite(std::int32_t position, const std::vector<std::byte>& bytes) {
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes_.at(Offset(position) + i) = bytes[i];
  return *this;
}

}  // namespace sample
