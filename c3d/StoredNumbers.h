// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

#include "c3d/C3dFormat.h"

// Numbers as a C3D file stores them: little-endian words, and 32-bit floats in the Intel (IEEE) or
// the DEC form. Everything is put together from bytes, so the host's own byte order is irrelevant.
namespace modVantrel {

// The short ones stand here because they are read by the million.
inline std::int16_t StoredInteger(std::span<const std::byte, 2> bytes) {
  const auto low = std::to_integer<unsigned>(bytes[0]);
  const auto high = std::to_integer<unsigned>(bytes[1]);
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(low | (high << 8U)));
}

inline std::uint32_t StoredSingleBits(std::span<const std::byte, 4> bytes) {
  return std::to_integer<std::uint32_t>(bytes[0]) |
         (std::to_integer<std::uint32_t>(bytes[1]) << 8U) |
         (std::to_integer<std::uint32_t>(bytes[2]) << 16U) |
         (std::to_integer<std::uint32_t>(bytes[3]) << 24U);
}

// The 16 bits of `value` read as 0 to 65535.
std::int32_t UnsignedWord(std::int16_t value);

// Turns a byte that was read as unsigned into the magnitude of its signed reading, in place: 0 to
// 127 stay, 129 to 255 become 127 to 1, and 128 (-128 in the file) becomes 0.
void SignedByteMagnitude(std::uint8_t& value);

// A DEC single-precision number, given as its four stored bytes read little-endian, as a float.
float ConvertDecFloat(std::uint32_t storedBits);

// The same for a float that was read as if it were IEEE; only where `processorType` is DEC.
void ConvertDecFloatInPlace(float& value, std::uint8_t processorType);
void ConvertDecFloatArray(std::span<float> values, std::uint8_t processorType);

// The float that `storedBits` stand for in a file of `processorType`.
inline float SingleFromBits(std::uint32_t storedBits, std::uint8_t processorType) {
  return processorType == kProcessorDec ? ConvertDecFloat(storedBits)
                                        : std::bit_cast<float>(storedBits);
}

}  // namespace modVantrel
