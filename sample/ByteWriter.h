// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace sample {

// Puts numbers and texts together as a C3D file stores them; floats in the form of the processor.
class ByteWriter {
 public:
  explicit ByteWriter(std::uint8_t processor) : processor_(processor) {}

  void Byte(std::uint8_t value) { bytes_.push_back(std::byte{value}); }
  void SignedByte(int value) { Byte(static_cast<std::uint8_t>(value)); }
  void Integer(std::int16_t value);
  void Single(float value);
  // The bytes of `text` as they stand, so Windows-1252 is written as such.
  void Text(std::string_view text);
  // `text` cut or padded with blanks to `width` bytes.
  void PaddedText(std::string_view text, std::size_t width);
  void Append(const std::vector<std::byte>& bytes);
  // Zeros up to `size` bytes in all; nothing where there are as many already.
  void PadTo(std::size_t size);

  std::size_t Size() const { return bytes_.size(); }
  std::vector<std::byte> Take() { return std::move(bytes_); }

 private:
  std::uint8_t processor_;
  std::vector<std::byte> bytes_;
};

// The two and four bytes of a number, little-endian and, for a float, in the processor's form.
std::vector<std::byte> IntegerBytes(std::int16_t value);
std::vector<std::byte> SingleBytes(float value, std::uint8_t processor);

}  // namespace sample
