// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

// The fixed numbers of the C3D file format, shared by the reader and the trial builder.
namespace modVantrel {

// Positions in a file are counted in bytes from 1. Block n starts at (n - 1) * kBlockSize + 1.
inline constexpr std::int32_t kBlockSize = 512;

inline constexpr std::uint8_t kFileKey = 80;  // "P", the second byte of every C3D file

inline constexpr std::uint8_t kProcessorIntel = 84;
inline constexpr std::uint8_t kProcessorDec = 85;

inline constexpr std::uint8_t kStoredAsInteger = 1;
inline constexpr std::uint8_t kStoredAsSingle = 2;

inline constexpr std::int32_t kHeaderEventSlots = 18;
inline constexpr std::size_t kHeaderEventLabelSize = 4;
inline constexpr std::size_t kReserved1Size = 274;
inline constexpr std::size_t kReserved2Size = 2;
inline constexpr std::size_t kReserved3Size = 2;
inline constexpr std::size_t kReserved4Size = 44;

inline constexpr std::int32_t kParamBlockHeaderSize = 4;
inline constexpr std::size_t kMostDimensions = 7;
inline constexpr std::int32_t kOffsetWordSize = 2;

// Data types of a parameter as they are kept in memory; in the file, text is the signed byte -1.
inline constexpr std::uint8_t kNoData = 0;
inline constexpr std::uint8_t kByteData = 1;
inline constexpr std::uint8_t kIntegerData = 2;
inline constexpr std::uint8_t kSingleData = 4;
inline constexpr std::uint8_t kTextData = 255;

inline constexpr std::uint8_t kGroupRecord = 1;
inline constexpr std::uint8_t kParamRecord = 2;

// A point of a frame holds X, Y, Z and a fourth word.
inline constexpr std::int32_t kWordsPerPoint = 4;
inline constexpr std::int32_t kIntegerSize = 2;
inline constexpr std::int32_t kSingleSize = 4;

}  // namespace modVantrel
