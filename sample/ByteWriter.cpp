// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample/ByteWriter.h"

#include <bit>

#include "c3d/C3dFormat.h"

namespace sample {

namespace {

std::byte LowByte(std::uint32_t value) { return static_cast<std::byte>(value & 0xFFU); }

// The bits that a DEC machine stores, read little-endian: exponent 2 larger, halves swapped.
std::uint32_t DecBits(std::uint32_t ieeeBits) {
  if (ieeeBits == 0) return 0;
  const std::uint32_t topByte = ((ieeeBits >> 24U) + 1U) & 0xFFU;
  const std::uint32_t scaled = (ieeeBits & 0x00FFFFFFU) | (topByte << 24U);
  return (scaled >> 16U) | (scaled << 16U);
}

}  // namespace

std::vector<std::byte> IntegerBytes(std::int16_t value) {
  const auto bits = static_cast<std::uint16_t>(value);
  return {LowByte(bits), LowByte(std::uint32_t{bits} >> 8U)};
}

std::vector<std::byte> SingleBytes(float value, std::uint8_t processor) {
  auto bits = std::bit_cast<std::uint32_t>(value);
  if (processor == modVantrel::kProcessorDec) bits = DecBits(bits);
  return {LowByte(bits), LowByte(bits >> 8U), LowByte(bits >> 16U), LowByte(bits >> 24U)};
}

void ByteWriter::Integer(std::int16_t value) { Append(IntegerBytes(value)); }

void ByteWriter::Single(float value) { Append(SingleBytes(value, processor_)); }

void ByteWriter::Text(std::string_view text) {
  for (const char character : text) Byte(static_cast<std::uint8_t>(character));
}

void ByteWriter::PaddedText(std::string_view text, std::size_t width) {
  Text(text.substr(0, width));
  for (std::size_t i = text.size(); i < width; ++i) Byte(' ');
}

void ByteWriter::Append(const std::vector<std::byte>& bytes) {
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

void ByteWriter::PadTo(std::size_t size) {
  if (bytes_.size() < size) bytes_.resize(size);
}

}  // namespace sample
