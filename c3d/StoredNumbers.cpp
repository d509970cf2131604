#include "c3d/StoredNumbers.h"

#include <bit>

#include "c3d/C3dFormat.h"

namespace modVantrel {

std::int16_t StoredInteger(std::span<const std::byte, 2> bytes) {
  const auto low = std::to_integer<unsigned>(bytes[0]);
  const auto high = std::to_integer<unsigned>(bytes[1]);
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(low | (high << 8U)));
}

std::uint32_t StoredSingleBits(std::span<const std::byte, 4> bytes) {
  return std::to_integer<std::uint32_t>(bytes[0]) |
         (std::to_integer<std::uint32_t>(bytes[1]) << 8U) |
         (std::to_integer<std::uint32_t>(bytes[2]) << 16U) |
         (std::to_integer<std::uint32_t>(bytes[3]) << 24U);
}

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

float SingleFromBits(std::uint32_t storedBits, std::uint8_t processorType) {
  return processorType == kProcessorDec ? ConvertDecFloat(storedBits)
                                        : std::bit_cast<float>(storedBits);
}

}  // namespace modVantrel
