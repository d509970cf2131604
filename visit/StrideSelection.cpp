// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/StrideSelection.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "gait/ValidStrides.h"
#include "support/Arithmetic.h"

namespace visit {

using modAllPurposeNumbers::Divide;
using modAllPurposeNumbers::RoundToLong;
using modAllPurposeNumbers::ToSingle;
using modVantrel::EventRecord;
using modVantrel::FileState;
using modVantrel::GaitEventType;
using modVantrel::PointSamples;
using modVantrel::StrideRecord;

namespace {

std::array<EventRecord, 5> EventsOf(const StrideRecord& stride) {
  const auto opposite = modVantrel::OppositeSide(stride.Side);
  return {{{stride.Side, GaitEventType::FootStrike, stride.StartStrikeTime},
           {opposite, GaitEventType::FootOff, stride.OppositeFootOffTime},
           {opposite, GaitEventType::FootStrike, stride.OppositeFootStrikeTime},
           {stride.Side, GaitEventType::FootOff, stride.SameFootOffTime},
           {stride.Side, GaitEventType::FootStrike, stride.StopStrikeTime}}};
}

}  // namespace

std::int32_t NearestFrame(const FileState& state, float time) {
  const double frames = ToSingle(Divide(time, state.TimeBetweenFrames));
  const std::int64_t number = std::int64_t{RoundToLong(std::floor(frames + 0.5))} + 1;
  const std::int64_t index = number - state.Header.FirstPointFrameNumber + 1;
  const std::int64_t last = std::max(state.PointFrameCount, 1);
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(index, 1, last));
}

bool IsComplete(const FileState& state, const StrideRecord& stride) {
  const auto events = EventsOf(stride);
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
  const std::int32_t last = NearestFrame(state, stride.StopStrikeTime);
  for (std::int32_t frame = NearestFrame(state, stride.StartStrikeTime); frame <= last; ++frame) {
    if (!samples[frame].IsSeen()) return false;
  }
  return true;
}

}  // namespace visit
