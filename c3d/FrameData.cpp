// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/FrameData.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "c3d/FrameLayout.h"
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

namespace {

// Where the gap to the label's bytes in the next frame is at most this, reading it along is faster
// than a system call a frame: about as many bytes are copied in the time of a call.
constexpr std::int64_t kWidestGapToReadAlong = 8192;
constexpr std::size_t kManyFrames = std::size_t{256} * 1024;

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

float FrameTime(const FileState& state, double secondsPerFrame, const FramePlace& place) {
  return TimeOfFrame(state, secondsPerFrame, place.FrameIndex);
}

// How far to read ahead when `used` bytes of each frame are wanted.
std::size_t ReadAheadFor(const FrameLayout& layout, std::int64_t used) {
  return layout.FrameSize - used <= kWidestGapToReadAlong ? kManyFrames
                                                          : static_cast<std::size_t>(used);
}

// Fills the coordinates of `sample` with those that the file stands at.
void ReadCoordinates(const FileState& state, const FrameLayout& layout, PointSample& sample) {
  DecodePoint(state, layout, state.C3dFileNumber.Read(static_cast<std::size_t>(layout.PointSize)),
              sample);
}

// Reads samples of points; what all frames share is worked out once.
class PointReader {
 public:
  explicit PointReader(const FileState& state)
      : state_(state), layout_(LayoutOf(state)), secondsPerFrame_(SecondsPerFrame(state)) {}

  const FrameLayout& Layout() const { return layout_; }

  PointSample At(std::int32_t position) const {
    PointSample sample;
    state_.C3dFileNumber.Seek(position);
    ReadCoordinates(state_, layout_, sample);
    const FramePlace place = PlaceOf(state_, layout_, position);
    const bool isLastLabel =
        place.OffsetInFrame / layout_.PointSize + 1 == state_.Header.PointLabelCount;
    FillPlaceAndTime(sample, place, position, isLastLabel);
    return sample;
  }

  // Fills all samples but the first with those of the same points, frame by frame.
  void FollowFrames(std::span<PointSamples> points) const {
    if (state_.PointFrameCount < 2) return;
    std::vector<Step> steps;
    for (const PointSamples& samples : points) steps.push_back(FirstStep(samples));
    for (std::int32_t frame = 2; frame <= state_.PointFrameCount; ++frame) {
      for (std::size_t i = 0; i < points.size(); ++i) Follow(steps[i], points[i][frame]);
    }
  }

 private:
  // Where a point stands in the frame to be read.
  struct Step {
    std::int32_t Position;
    FramePlace Place;
    bool IsLastLabel;
  };

  Step FirstStep(const PointSamples& samples) const {
    const std::int32_t position = samples[1].NextFramePosition;
    return {position, PlaceOf(state_, layout_, position), samples[1].NextPointPosition == 0};
  }

  // Reads the sample and steps on to the next frame.
  void Follow(Step& step, PointSample& sample) const {
    state_.C3dFileNumber.Seek(step.Position);
    ReadCoordinates(state_, layout_, sample);
    FillPlaceAndTime(sample, step.Place, step.Position, step.IsLastLabel);
    step.Position = sample.NextFramePosition;
    // Only damage makes a frame's size negative; it then leads out of the file.
    step.Place = layout_.FrameSize > 0
                     ? FramePlace{step.Place.FrameIndex + 1, step.Place.OffsetInFrame}
                     : PlaceOf(state_, layout_, step.Position);
  }

  // The file stands behind the sample at `position`.
  void FillPlaceAndTime(PointSample& sample, const FramePlace& place, std::int32_t position,
                        bool isLastLabel) const {
    sample.NextFramePosition = NextFrame(state_, layout_, place, position);
    sample.NextPointPosition = isLastLabel ? 0 : state_.C3dFileNumber.Position();
    sample.Time = FrameTime(state_, secondsPerFrame_, place);
  }

  const FileState& state_;
  FrameLayout layout_;
  double secondsPerFrame_;
};

// Reads the samples of a channel; what all frames share is worked out once.
class AnalogReader {
 public:
  explicit AnalogReader(const FileState& state)
      : state_(state),
        layout_(LayoutOf(state)),
        secondsPerFrame_(SecondsPerFrame(state)),
        samples_(std::max<std::int16_t>(state.Header.AnalogSamplesPerChannel, 0)),
        step_(double{state.AnalogChannelsCount} * layout_.ValueSize),
        wholeStep_(static_cast<std::int64_t>(step_)),
        span_(static_cast<std::int64_t>(step_ * (samples_ - 1)) + layout_.ValueSize) {}

  const FrameLayout& Layout() const { return layout_; }
  std::size_t SampleCount() const { return static_cast<std::size_t>(samples_); }

  // Bytes from the channel's first sample in a frame to behind its last.
  std::int64_t Span() const { return span_; }

  // All frames of the channel whose first sample stands at `position`.
  AnalogFrames Frames(std::int32_t position) const {
    FramePlace place = PlaceOf(state_, layout_, position);
    RequireFrames(position);
    const auto count = static_cast<std::size_t>(state_.PointFrameCount);
    const auto block = std::make_shared<std::vector<float>>(count * SampleCount());
    const std::span<float> values(*block);
    AnalogFrames::Tags tags(state_.PointFrameCount);
    for (std::size_t i = 0; i < count; ++i, ++place.FrameIndex) {
      const std::int32_t next = NextFrame(state_, layout_, place, position);
      ReadSamples(values.subspan(i * SampleCount(), SampleCount()), position);
      tags.AsSpan()[i] = {.Time = Time(place), .NextFramePosition = next};
      position = next;
    }
    return {block, samples_, std::move(tags)};
  }

  float Time(const FramePlace& place) const { return FrameTime(state_, secondsPerFrame_, place); }

  // Fills `values` from `position` on, which moves behind the last one.
  void ReadSamples(std::span<float> values, std::int32_t& position) const {
    if (wholeStep_ < 0 || static_cast<double>(wholeStep_) != step_) {
      for (float& value : values) {
        state_.C3dFileNumber.Seek(position);
        value = Value(state_.C3dFileNumber.Read(static_cast<std::size_t>(layout_.ValueSize)));
        position = RoundToLong(position + step_);
      }
    } else if (!values.empty()) {
      state_.C3dFileNumber.Seek(position);
      const auto bytes = state_.C3dFileNumber.Read(static_cast<std::size_t>(span_));
      const auto step = static_cast<std::size_t>(wholeStep_);
      for (std::size_t i = 0; i < values.size(); ++i) values[i] = Value(bytes.subspan(i * step));
      position = ToLong(position + wholeStep_ * samples_);
    }
  }

 private:
  float Value(std::span<const std::byte> bytes) const {
    if (layout_.ValueSize == kIntegerSize) return StoredInteger(bytes.first<kIntegerSize>());
    return SingleFromBits(StoredSingleBits(bytes.first<kSingleSize>()), state_.ProcessorType);
  }

  // The file must reach into the last frame before memory is taken for all of them. A sample takes
  // its own bytes of a frame, as there is at least one channel.
  void RequireFrames(std::int32_t position) const {
    state_.C3dFileNumber.Seek(position);
    const std::int64_t others = state_.PointFrameCount - 1;
    state_.C3dFileNumber.RequireLeft(
        static_cast<std::uint64_t>(others * layout_.FrameSize + layout_.ValueSize));
  }

  const FileState& state_;
  FrameLayout layout_;
  double secondsPerFrame_;
  std::int32_t samples_;
  double step_;  // bytes between two samples; has a fraction where the channel count has one
  std::int64_t wholeStep_;
  std::int64_t span_;
};

std::int32_t IndexOf(const OneBasedTable<std::string>& labels, std::string_view label) {
  const std::string wanted = modAllPurpose::SearchKey(label);
  for (std::int32_t i = 1; i <= labels.Count(); ++i) {
    if (UpperCase(labels[i]) == wanted) return i;
  }
  return 0;
}

void SetEvent(PointSamples& samples, const EventFrameRecord& event) {
  PointSample& sample = samples[event.Frame];
  sample.EventSide = event.Side;
  sample.EventType = event.Type;
}

void SetEvent(AnalogFrames& frames, const EventFrameRecord& event) { frames.SetEvent(event); }

template <typename Frames>
void TagWithEvents(const FileState& state, Frames& frames) {
  for (std::int32_t k = 1; k <= state.StrideEventFrameCount; ++k) {
    SetEvent(frames, state.StrideEventFrames[k]);
  }
}

}  // namespace

float ResidualOf(const PointSample& sample, float scaleFactor) {
  constexpr double kResidualRange = 256;
  const double word = sample.FourthWord;
  if (!(word >= 0)) return -1;
  // The usual case by itself: a remainder takes longer than a coordinate to print.
  const double residual = word < kResidualRange ? static_cast<std::int32_t>(word)
                                                : std::fmod(std::trunc(word), kResidualRange);
  return static_cast<float>(residual * scaleFactor);
}

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
  return std::move(ReadPointDataForIndexes(state, index, 1).front());
}

std::vector<PointSamples> ReadPointDataForIndexes(const FileState& state, std::int32_t first,
                                                  std::int32_t count) {
  std::vector<PointSamples> points(static_cast<std::size_t>(count));
  if (first < 1 || first > state.Header.PointLabelCount - count + 1) return points;
  state.C3dFileNumber.ForgetBuffer();
  const PointReader reader(state);
  for (PointSamples& samples : points) samples = PointSamples(state.PointFrameCount);
  std::int32_t position = state.SeekPtrForFirstFrameData;
  for (std::int32_t label = 1; label < first + count; ++label) {
    const PointSample sample = reader.At(position);
    points[static_cast<std::size_t>(std::max(label - first, 0))][1] = sample;
    position = sample.NextPointPosition;
  }
  const std::int64_t used = std::int64_t{count} * reader.Layout().PointSize;
  const BinaryFile::ReadAhead ahead(state.C3dFileNumber, ReadAheadFor(reader.Layout(), used));
  reader.FollowFrames(points);
  return points;
}

AnalogFrames ReadAnalogDataForIndex(const FileState& state, std::int32_t channel) {
  if (channel < 1 || static_cast<float>(channel) > state.AnalogChannelsCount) return {};
  state.C3dFileNumber.ForgetBuffer();
  const AnalogReader reader(state);
  const BinaryFile::ReadAhead ahead(state.C3dFileNumber,
                                    ReadAheadFor(reader.Layout(), reader.Span()));
  return reader.Frames(
      ToLong(std::int64_t{state.SeekPtrForFirstFrameData} +
             std::int64_t{state.Header.PointLabelCount} * reader.Layout().PointSize +
             std::int64_t{channel - 1} * reader.Layout().ValueSize));
}

PointSample ReadPointSampleAt(const FileState& state, std::int32_t position) {
  return PointReader(state).At(position);
}

AnalogFrame ReadAnalogFrameAt(const FileState& state, std::int32_t& position) {
  const AnalogReader reader(state);
  const FramePlace place = PlaceOf(state, reader.Layout(), position);
  const std::int32_t next = NextFrame(state, reader.Layout(), place, position);
  const auto block = std::make_shared<std::vector<float>>(reader.SampleCount());
  reader.ReadSamples(*block, position);
  return {SampleValues(block, 0, static_cast<std::int32_t>(reader.SampleCount())),
          reader.Time(place), next};
}

}  // namespace modVantrel
