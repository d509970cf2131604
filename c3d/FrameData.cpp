#include "c3d/FrameData.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "c3d/StoredNumbers.h"
#include "support/Arithmetic.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::ErrorNumber;
using modAllPurpose::OneBasedTable;
using modAllPurpose::RuntimeError;
using modAllPurpose::UpperCase;
using modAllPurposeNumbers::RoundToLong;
using modAllPurposeNumbers::ToLong;
using modAllPurposeNumbers::ToSingle;

namespace {

constexpr std::size_t kCoordinates = 3;

// Where the gap to the label's bytes in the next frame is at most this, reading it along is faster
// than a system call a frame.
constexpr std::int64_t kWidestGapToReadAlong = 4096;
constexpr std::size_t kManyFrames = std::size_t{256} * 1024;

// Sizes of the frame data in bytes; 0 where the storage is unknown.
struct FrameLayout {
  std::int32_t ValueSize = 0;
  std::int32_t PointSize = 0;
  std::int32_t FrameSize = 0;
};

FrameLayout LayoutOf(const FileState& state) {
  FrameLayout layout;
  if (state.DataStoredAsIntegerOrSingle == kStoredAsInteger) layout.ValueSize = kIntegerSize;
  if (state.DataStoredAsIntegerOrSingle == kStoredAsSingle) layout.ValueSize = kSingleSize;
  layout.PointSize = kWordsPerPoint * layout.ValueSize;
  layout.FrameSize = state.Header.PointLabelCount * layout.PointSize +
                     state.Header.AnalogValuesPerFrame * layout.ValueSize;
  return layout;
}

// Where a position lies in the frame data.
struct FramePlace {
  std::int32_t FrameIndex = 0;     // from 0
  std::int32_t OffsetInFrame = 0;  // bytes
};

FramePlace PlaceOf(const FileState& state, const FrameLayout& layout, std::int32_t position) {
  if (layout.FrameSize == 0) throw RuntimeError(ErrorNumber::DivisionByZero);
  const std::int32_t offset =
      ToLong(std::int64_t{position} - std::int64_t{state.SeekPtrForFirstFrameData});
  return {offset / layout.FrameSize, offset % layout.FrameSize};
}

std::int32_t NextFrame(const FileState& state, const FrameLayout& layout, const FramePlace& place,
                       std::int32_t position) {
  if (place.FrameIndex + 1 == state.PointFrameCount) return 0;
  return ToLong(std::int64_t{position} + layout.FrameSize);
}

float FrameTime(const FileState& state, const FramePlace& place) {
  const double rate = state.Header.PointFrameRate;
  return ToSingle(1.0 / rate * place.FrameIndex + double{state.WalkStartTime});
}

// How far to read ahead when `used` bytes of each frame are wanted.
std::size_t ReadAheadFor(const FrameLayout& layout, std::int64_t used) {
  return layout.FrameSize - used <= kWidestGapToReadAlong ? kManyFrames
                                                          : static_cast<std::size_t>(used);
}

std::array<float, kCoordinates> ReadCoordinates(const FileState& state, const FrameLayout& layout) {
  const auto words = state.C3dFileNumber.Read(static_cast<std::size_t>(layout.PointSize));
  std::array<float, kCoordinates> coordinates{};
  if (layout.ValueSize == kIntegerSize) {
    for (std::size_t i = 0; i < kCoordinates; ++i) {
      const auto stored = StoredInteger(words.subspan(i * kIntegerSize).first<kIntegerSize>());
      coordinates[i] = ToSingle(stored * double{state.Header.ScaleFactor});
    }
  } else if (layout.ValueSize == kSingleSize) {
    for (std::size_t i = 0; i < kCoordinates; ++i) {
      const auto bits = StoredSingleBits(words.subspan(i * kSingleSize).first<kSingleSize>());
      coordinates[i] = SingleFromBits(bits, state.ProcessorType);
    }
  }
  return coordinates;
}

float ReadAnalogValue(const FileState& state, const FrameLayout& layout, std::int32_t position) {
  state.C3dFileNumber.Seek(position);
  if (layout.ValueSize == kIntegerSize) return state.C3dFileNumber.ReadInteger();
  return SingleFromBits(state.C3dFileNumber.ReadSingleBits(), state.ProcessorType);
}

std::int32_t IndexOf(const OneBasedTable<std::string>& labels, std::string_view label) {
  const std::string wanted = modAllPurpose::SearchKey(label);
  for (std::int32_t i = 1; i <= labels.Count(); ++i) {
    if (UpperCase(labels[i]) == wanted) return i;
  }
  return 0;
}

template <typename Frames>
void TagWithEvents(const FileState& state, Frames& frames) {
  for (std::int32_t k = 1; k <= state.StrideEventFrameCount; ++k) {
    const EventFrameRecord& event = state.StrideEventFrames[k];
    frames[event.Frame].EventSide = event.Side;
    frames[event.Frame].EventType = event.Type;
  }
}

}  // namespace

std::int32_t GetPointLabelIndex(const FileState& state, std::string_view label) {
  return IndexOf(state.PointLabels, label);
}

std::int32_t GetAnalogLabelIndex(const FileState& state, std::string_view label) {
  return IndexOf(state.AnalogLabels, label);
}

bool PointLabelExists(const FileState& state, std::string_view label) {
  return GetPointLabelIndex(state, label) != 0;
}

bool AnalogLabelExists(const FileState& state, std::string_view label) {
  return GetAnalogLabelIndex(state, label) != 0;
}

PointSamples GetPointDataForLabel(const FileState& state, std::string_view label) {
  return ReadPointDataForIndex(state, GetPointLabelIndex(state, label));
}

AnalogFrames GetAnalogDataForLabel(const FileState& state, std::string_view label) {
  return ReadAnalogDataForIndex(state, GetAnalogLabelIndex(state, label));
}

PointSamples GetPointDataWithEventsForLabel(const FileState& state, std::string_view label) {
  if (!PointLabelExists(state, label)) return {};
  PointSamples samples = GetPointDataForLabel(state, label);
  TagWithEvents(state, samples);
  return samples;
}

AnalogFrames GetAnalogDataWithEventsForLabel(const FileState& state, std::string_view label) {
  if (!AnalogLabelExists(state, label)) return {};
  AnalogFrames frames = GetAnalogDataForLabel(state, label);
  TagWithEvents(state, frames);
  return frames;
}

PointSamples ReadPointDataForIndex(const FileState& state, std::int32_t index) {
  if (index < 1 || index > state.Header.PointLabelCount) return {};
  state.C3dFileNumber.ForgetBuffer();
  PointSamples samples(state.PointFrameCount);
  std::int32_t position = state.SeekPtrForFirstFrameData;
  for (std::int32_t label = 1; label <= index; ++label) {
    samples[1] = ReadPointSampleAt(state, position);
    position = samples[1].NextPointPosition;
  }
  const FrameLayout layout = LayoutOf(state);
  const BinaryFile::ReadAhead ahead(state.C3dFileNumber, ReadAheadFor(layout, layout.PointSize));
  position = samples[1].NextFramePosition;
  for (std::int32_t frame = 2; frame <= state.PointFrameCount; ++frame) {
    samples[frame] = ReadPointSampleAt(state, position);
    position = samples[frame].NextFramePosition;
  }
  return samples;
}

AnalogFrames ReadAnalogDataForIndex(const FileState& state, std::int32_t channel) {
  if (channel < 1 || static_cast<float>(channel) > state.AnalogChannelsCount) return {};
  state.C3dFileNumber.ForgetBuffer();
  const FrameLayout layout = LayoutOf(state);
  // From the channel's first to its last sample in a frame.
  const double span = double{state.AnalogChannelsCount} * layout.ValueSize *
                      (state.Header.AnalogSamplesPerChannel - 1);
  const BinaryFile::ReadAhead ahead(
      state.C3dFileNumber,
      ReadAheadFor(layout, static_cast<std::int64_t>(span) + layout.ValueSize));

  AnalogFrames frames(state.PointFrameCount);
  std::int32_t position = ToLong(std::int64_t{state.SeekPtrForFirstFrameData} +
                                 std::int64_t{state.Header.PointLabelCount} * layout.PointSize +
                                 std::int64_t{channel - 1} * layout.ValueSize);
  for (std::int32_t frame = 1; frame <= state.PointFrameCount; ++frame) {
    frames[frame] = ReadAnalogFrameAt(state, position);
    position = frames[frame].NextFramePosition;
  }
  return frames;
}

PointSample ReadPointSampleAt(const FileState& state, std::int32_t position) {
  const FrameLayout layout = LayoutOf(state);
  state.C3dFileNumber.Seek(position);
  const auto [x, y, z] = ReadCoordinates(state, layout);
  PointSample sample;
  sample.X = x;
  sample.Y = y;
  sample.Z = z;
  const FramePlace place = PlaceOf(state, layout, position);
  const std::int32_t labelNumber = place.OffsetInFrame / layout.PointSize + 1;
  sample.NextFramePosition = NextFrame(state, layout, place, position);
  sample.NextPointPosition =
      labelNumber == state.Header.PointLabelCount ? 0 : state.C3dFileNumber.Position();
  sample.Time = FrameTime(state, place);
  return sample;
}

AnalogFrame ReadAnalogFrameAt(const FileState& state, std::int32_t& position) {
  const FrameLayout layout = LayoutOf(state);
  const FramePlace place = PlaceOf(state, layout, position);
  AnalogFrame frame;
  frame.NextFramePosition = NextFrame(state, layout, place, position);
  frame.Time = FrameTime(state, place);
  frame.Values = OneBasedTable<float>(state.Header.AnalogSamplesPerChannel);
  const double step = double{state.AnalogChannelsCount} * layout.ValueSize;
  for (float& value : frame.Values) {
    value = ReadAnalogValue(state, layout, position);
    position = RoundToLong(position + step);
  }
  return frame;
}

}  // namespace modVantrel
