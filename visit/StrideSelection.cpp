// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/StrideSelection.h"

#include <algorithm>

#include "gait/StrideEvents.h"

namespace visit {

using modVantrel::EventRecord;
using modVantrel::FileState;
using modVantrel::PointSamples;
using modVantrel::StrideRecord;

bool IsComplete(const FileState& state, const StrideRecord& stride) {
  const auto events = modVantrel::EventsOf(stride);
  return std::ranges::none_of(state.GaitEvents.OutsideEvents, [&](EventRecord moved) {
    moved.Time = modVantrel::ClampToWalk(state, moved.Time);
    return std::ranges::find(events, moved) != events.end();
  });
}

std::vector<std::int32_t> CompleteStrides(const FileState& state) {
  std::vector<std::int32_t> complete;
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    if (IsComplete(state, state.GaitEvents.ValidStrides[i])) complete.push_back(i);
  }
  return complete;
}

bool IsSeenThrough(const FileState& state, const PointSamples& samples,
                   const StrideRecord& stride) {
  const std::int32_t last = modVantrel::FrameNearestTo(state, stride.StopStrikeTime);
  for (std::int32_t frame = modVantrel::FrameNearestTo(state, stride.StartStrikeTime);
       frame <= last; ++frame) {
    if (!samples[frame].IsSeen()) return false;
  }
  return true;
}

}  // namespace visit
