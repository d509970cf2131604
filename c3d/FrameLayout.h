// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "c3d/C3dFormat.h"
#include "c3d/FileState.h"
#include "c3d/FrameData.h"
#include "c3d/StoredNumbers.h"
#include "support/Arithmetic.h"

// How the frames of the open file lie behind one another: the points of a frame, four words each,
// then its analog values.
namespace modVantrel {

// Sizes of the frame data in bytes; 0 where the storage is unknown.
struct FrameLayout {
  std::int32_t ValueSize = 0;
  std::int32_t PointSize = 0;
  std::int32_t FrameSize = 0;
};

inline FrameLayout LayoutOf(const FileState& state) {
  FrameLayout layout;
  if (state.DataStoredAsIntegerOrSingle == kStoredAsInteger) layout.ValueSize = kIntegerSize;
  if (state.DataStoredAsIntegerOrSingle == kStoredAsSingle) layout.ValueSize = kSingleSize;
  layout.PointSize = kWordsPerPoint * layout.ValueSize;
  layout.FrameSize = state.Header.PointLabelCount * layout.PointSize +
                     state.Header.AnalogValuesPerFrame * layout.ValueSize;
  return layout;
}

// Fills the coordinates and the fourth word of `sample` with what the PointSize bytes `words` hold.
inline void DecodePoint(const FileState& state, const FrameLayout& layout,
                        std::span<const std::byte> words, PointSample& sample) {
  using modAllPurposeNumbers::ToSingle;
  if (layout.ValueSize == kIntegerSize) {
    const double scale = state.Header.ScaleFactor;
    const auto coordinate = [&](std::size_t i) {
      return ToSingle(StoredInteger(words.subspan(i * kIntegerSize).first<kIntegerSize>()) * scale);
    };
    sample.X = coordinate(0);
    sample.Y = coordinate(1);
    sample.Z = coordinate(2);
    sample.FourthWord =
        StoredInteger(words.subspan(std::size_t{3} * kIntegerSize).first<kIntegerSize>());
  } else if (layout.ValueSize == kSingleSize) {
    const auto coordinate = [&](std::size_t i) {
      const auto bits = StoredSingleBits(words.subspan(i * kSingleSize).first<kSingleSize>());
      return SingleFromBits(bits, state.ProcessorType);
    };
    sample.X = coordinate(0);
    sample.Y = coordinate(1);
    sample.Z = coordinate(2);
    sample.FourthWord = coordinate(3);
  }
}

// 1 / PointFrameRate, not rounded to a float.
inline double SecondsPerFrame(const FileState& state) { return 1.0 / state.Header.PointFrameRate; }

// The time of a frame, counted from 0, in seconds of the trial.
inline float TimeOfFrame(const FileState& state, double secondsPerFrame, std::int32_t index) {
  return modAllPurposeNumbers::ToSingle(secondsPerFrame * index + double{state.WalkStartTime});
}

}  // namespace modVantrel
