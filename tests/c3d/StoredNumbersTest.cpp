// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <bit>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/C3dFormat.h"
#include "c3d/StoredNumbers.h"

namespace {

using namespace modVantrel;

using FourBytes = std::array<std::uint8_t, 4>;

// The bytes of a float in file order, read little-endian.
std::uint32_t Bits(const FourBytes& bytes) {
  return bytes[0] | (std::uint32_t{bytes[1]} << 8U) | (std::uint32_t{bytes[2]} << 16U) |
         (std::uint32_t{bytes[3]} << 24U);
}

struct DecRow {
  FourBytes Stored;
  float Value;
};

const std::vector<DecRow> kDecNumbers = {
    DecRow{{0x00, 0x00, 0x00, 0x00}, 0.0F},
    DecRow{{0x80, 0x40, 0x00, 0x00}, 1.0F},
    DecRow{{0x80, 0xC0, 0x00, 0x00}, -1.0F},
    DecRow{{0x20, 0xC1, 0x00, 0x00}, -2.5F},
    DecRow{{0x42, 0x43, 0x00, 0x00}, 48.5F},
    DecRow{{0xF0, 0x43, 0x00, 0x00}, 120.0F},
    DecRow{{0xCC, 0x3E, 0xCD, 0xCC}, 0.1F},
    DecRow{{0x49, 0x41, 0xDB, 0x0F}, 3.14159274F},
    DecRow{{0x80, 0x01, 0x00, 0x00}, 1.17549435e-38F},
    DecRow{{0x00, 0x01, 0x00, 0x00}, 0.0F},
};

TEST(ConvertDecFloat, GivesTheNumbersOfAHandMadeTable) {
  for (const DecRow& row : kDecNumbers) {
    EXPECT_EQ(ConvertDecFloat(Bits(row.Stored)), row.Value) << std::hex << Bits(row.Stored);
  }
}

TEST(ConvertDecFloat, GivesAnotherNumberThanAnUnconvertedRead) {
  const FourBytes stored = {0x42, 0x43, 0x00, 0x00};
  EXPECT_NE(std::bit_cast<float>(Bits(stored)), 48.5F);
  EXPECT_EQ(std::bit_cast<std::uint32_t>(ConvertDecFloat(Bits(stored))),
            Bits({0x00, 0x00, 0x42, 0x42}));
}

TEST(ConvertDecFloat, ATopByteOfZeroWrapsTo255) {
  struct Row {
    FourBytes Stored;
    FourBytes Converted;
  };
  const std::vector<Row> rows = {
      Row{{0x01, 0x00, 0x00, 0x00}, {0x00, 0x00, 0x01, 0xFF}},
      Row{{0x00, 0x00, 0x01, 0x00}, {0x01, 0x00, 0x00, 0xFF}},
      Row{{0x80, 0x00, 0x00, 0x00}, {0x00, 0x00, 0x80, 0xFF}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(ConvertDecFloat(Bits(row.Stored))), Bits(row.Converted));
  }
}

TEST(ConvertDecFloatInPlace, ConvertsForDecOnly) {
  const auto stored = std::bit_cast<float>(Bits({0x42, 0x43, 0x00, 0x00}));
  float value = stored;
  ConvertDecFloatInPlace(value, kProcessorIntel);
  EXPECT_EQ(value, stored);
  ConvertDecFloatInPlace(value, kProcessorDec);
  EXPECT_EQ(value, 48.5F);
}

TEST(ConvertDecFloatArray, ConvertsEveryElementForDecOnly) {
  const std::array<float, 3> stored = {std::bit_cast<float>(Bits({0x80, 0x40, 0x00, 0x00})), 0.0F,
                                       std::bit_cast<float>(Bits({0xF0, 0x43, 0x00, 0x00}))};
  std::array<float, 3> values = stored;
  ConvertDecFloatArray(values, kProcessorIntel);
  EXPECT_EQ(values, stored);
  ConvertDecFloatArray(values, kProcessorDec);
  EXPECT_EQ(values, (std::array{1.0F, 0.0F, 120.0F}));
}

TEST(UnsignedWord, ReadsSixteenBitsAs0To65535) {
  EXPECT_EQ(UnsignedWord(0), 0);
  EXPECT_EQ(UnsignedWord(1), 1);
  EXPECT_EQ(UnsignedWord(32767), 32767);
  EXPECT_EQ(UnsignedWord(-32768), 32768);
  EXPECT_EQ(UnsignedWord(-25536), 40000);
  EXPECT_EQ(UnsignedWord(-1), 65535);
}

TEST(SignedByteMagnitude, OfAll256Bytes) {
  for (int byte = 0; byte < 256; ++byte) {
    auto value = static_cast<std::uint8_t>(byte);
    SignedByteMagnitude(value);
    const int expected = byte < 128 ? byte : 256 - byte;
    EXPECT_EQ(value, byte == 128 ? 0 : expected) << byte;
  }
}

TEST(StoredInteger, IsLittleEndianAndSigned) {
  EXPECT_EQ(StoredInteger(std::array{std::byte{0x34}, std::byte{0x12}}), 0x1234);
  EXPECT_EQ(StoredInteger(std::array{std::byte{0xFE}, std::byte{0xFF}}), -2);
  EXPECT_EQ(StoredInteger(std::array{std::byte{0x00}, std::byte{0x80}}), -32768);
}

}  // namespace
