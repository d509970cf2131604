// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/StoredNumbers.h"

#include <bit>

namespace modVantrel {

std::int32_t UnsignedWord(std::int16_t value) { return static_cast<std::uint16_t>(value); }

void SignedByteMagnitude(std::uint8_t& value) {
  if (value == 128) {
    value = 0;
  } else if (value > 128) {
    value = static_cast<std::uint8_t>(256 - value);
  }
}

float ConvertDecFloat(std::uint32_t storedBits) {
  const std::uint32_t swapped = (storedBits >> 16U) | (storedBits << 16U);
  if (swapped == 0) return 0.0F;
  // The DEC exponent is 2 larger than the IEEE one: 1 in the top byte. A top byte of 0 wraps to
  // 255.
  const std::uint32_t topByte = ((swapped >> 24U) - 1U) & 0xFFU;
  return std::bit_cast<float>((swapped & 0x00FFFFFFU) | (topByte << 24U));
}

void ConvertDecFloatInPlace(float& value, std::uint8_t processorType) {
  value = SingleFromBits(std::bit_cast<std::uint32_t>(value), processorType);
}

void ConvertDecFloatArray(std::span<float> values, std::uint8_t processorType) {
  for (float& value : values) ConvertDecFloatInPlace(value, processorType);
}

}  // namespace modVantrel
