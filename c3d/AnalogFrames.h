// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "c3d/GaitEvents.h"
#include "c3d/SampleValues.h"
#include "support/OneBasedTable.h"

namespace modVantrel {

// One analog channel in one frame.
struct AnalogFrame {
  SampleValues Values;                 // in time order, as stored: no scale, no offset
  float Time = 0;                      // seconds; of the frame, not of each sample
  std::int32_t NextFramePosition = 0;  // of the channel's first sample; 0 in the last frame
  GaitEventType EventType = GaitEventType::Other;
  GaitSide EventSide = GaitSide::None;
};

// One analog channel in every frame, 1 to Count(); an index outside is error 9. The samples of all
// frames stand in one block, and a frame is put together only when it is asked for: a record for
// each would take more memory than the samples themselves.
class AnalogFrames {
 public:
  // What a frame has beside its samples.
  struct Tag {
    float Time = 0;
    std::int32_t NextFramePosition = 0;
    GaitEventType EventType = GaitEventType::Other;
    GaitSide EventSide = GaitSide::None;
  };
  using Tags = modAllPurpose::OneBasedTable<Tag>;

  AnalogFrames() = default;

  // `block` must hold `samplesPerFrame` samples for each of `tags`, frame after frame.
  AnalogFrames(SampleBlock block, std::int32_t samplesPerFrame, Tags tags)
      : block_(std::move(block)), samplesPerFrame_(samplesPerFrame), tags_(std::move(tags)) {}

  std::int32_t Count() const { return tags_.Count(); }
  bool IsEmpty() const { return tags_.IsEmpty(); }

  AnalogFrame operator[](std::int32_t index) const {
    const Tag& tag = tags_[index];
    const auto first =
        static_cast<std::size_t>(index - 1) * static_cast<std::size_t>(samplesPerFrame_);
    return {SampleValues(block_, first, samplesPerFrame_), tag.Time, tag.NextFramePosition,
            tag.EventType, tag.EventSide};
  }

  // Tags the frame on which the event falls; a frame's earlier event gives way.
  void SetEvent(const EventFrameRecord& event) {
    Tag& tag = tags_[event.Frame];
    tag.EventSide = event.Side;
    tag.EventType = event.Type;
  }

 private:
  SampleBlock block_;
  std::int32_t samplesPerFrame_ = 0;
  Tags tags_;
};

}  // namespace modVantrel
