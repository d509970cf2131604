// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/StrideEvents.h"

#include <algorithm>
#include <cmath>

#include "gait/ValidStrides.h"
#include "support/Arithmetic.h"

namespace modVantrel {

using modAllPurposeNumbers::Divide;
using modAllPurposeNumbers::RoundToLong;
using modAllPurposeNumbers::ToSingle;

std::array<EventRecord, 5> EventsOf(const StrideRecord& stride) {
  const GaitSide opposite = OppositeSide(stride.Side);
  return {{{stride.Side, GaitEventType::FootStrike, stride.StartStrikeTime},
           {opposite, GaitEventType::FootOff, stride.OppositeFootOffTime},
           {opposite, GaitEventType::FootStrike, stride.OppositeFootStrikeTime},
           {stride.Side, GaitEventType::FootOff, stride.SameFootOffTime},
           {stride.Side, GaitEventType::FootStrike, stride.StopStrikeTime}}};
}

std::int32_t FrameNearestTo(const FileState& state, float time) {
  const double frames = ToSingle(Divide(time, state.TimeBetweenFrames));
  const std::int64_t number = std::int64_t{RoundToLong(std::floor(frames + 0.5))} + 1;
  const std::int64_t index = number - state.Header.FirstPointFrameNumber + 1;
  const std::int64_t last = std::max(state.PointFrameCount, 1);
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(index, 1, last));
}

}  // namespace modVantrel
