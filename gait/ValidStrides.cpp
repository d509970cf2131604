// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/ValidStrides.h"

#include <bit>
#include <utility>

#include "gait/StrideEvents.h"
#include "support/Arithmetic.h"

namespace modVantrel {

using modAllPurpose::OneBasedTable;
using modAllPurposeNumbers::Divide;
using modAllPurposeNumbers::RoundToLong;
using modAllPurposeNumbers::ToLong;
using modAllPurposeNumbers::ToSingle;

namespace {

constexpr std::int32_t kEventsPerStride = 5;

// The share of a frame by which two events must be apart to lie on different frames.
constexpr double kLeastFramesApart = 0.8;

class StrideSearch {
 public:
  StrideSearch(const OneBasedTable<EventRecord>& events, float timeBetweenFrames)
      : events_(events), leastTimeApart_(ToSingle(kLeastFramesApart * timeBetweenFrames)) {}

  // Whether the five events from `i` on are a stride.
  bool IsStride(std::int32_t i) const {
    const GaitSide side = events_[i].Side;
    return events_[i].Type == GaitEventType::FootStrike && Follows(i + 1, GaitEventType::FootOff) &&
           events_[i + 1].Side != side && Follows(i + 2, GaitEventType::FootStrike) &&
           events_[i + 2].Side != side && Follows(i + 3, GaitEventType::FootOff) &&
           events_[i + 3].Side == side && Follows(i + 4, GaitEventType::FootStrike) &&
           events_[i + 4].Side == side;
  }

 private:
  // Whether event `i` is of that type and on a later frame than the one before.
  bool Follows(std::int32_t i, GaitEventType type) const {
    const float apart = ToSingle(double{events_[i].Time} - events_[i - 1].Time);
    return events_[i].Type == type && apart > leastTimeApart_;
  }

  const OneBasedTable<EventRecord>& events_;
  float leastTimeApart_;
};

StrideRecord MakeStride(const OneBasedTable<EventRecord>& events, std::int32_t i,
                        std::int32_t number) {
  return {events[i].Side,     number,
          events[i].Time,     events[i + 1].Time,
          events[i + 2].Time, events[i + 3].Time,
          events[i + 4].Time};
}

void FillValidStrides(FileState& state) {
  GaitEventState& gait = state.GaitEvents;
  const auto& events = gait.SidedStrikeOffEvents;
  const StrideSearch search(events, state.TimeBetweenFrames);
  std::int32_t leftNumber = 0;
  std::int32_t rightNumber = 0;
  for (std::int32_t i = 1; i <= gait.SidedStrikeOffCount - (kEventsPerStride - 1); ++i) {
    if (!search.IsStride(i)) continue;
    std::int32_t& number = events[i].Side == GaitSide::Left ? leftNumber : rightNumber;
    gait.ValidStrides.Append(MakeStride(events, i, ++number));
  }
  gait.ValidStrideCount = gait.ValidStrides.Count();
}

void FillStrideEvents(GaitEventState& gait) {
  for (const StrideRecord& stride : gait.ValidStrides) {
    for (const EventRecord& event : EventsOf(stride)) gait.StrideEvents.Append(event);
  }
  RemoveRepeatedEvents(gait.StrideEvents);
  gait.StrideEventCount = gait.StrideEvents.Count();
}

// Equality of times is that of their bits.
bool IsRepeat(const EventRecord& left, const EventRecord& right) {
  return left.Side == right.Side && left.Type == right.Type &&
         std::bit_cast<std::uint32_t>(left.Time) == std::bit_cast<std::uint32_t>(right.Time);
}

bool HasRepeat(const OneBasedTable<EventRecord>& events, std::int32_t i) {
  for (std::int32_t j = i + 1; j <= events.Count(); ++j) {
    if (IsRepeat(events[i], events[j])) return true;
  }
  return false;
}

}  // namespace

void SortEventsByTime(std::int32_t count, OneBasedTable<EventRecord>& events) {
  for (std::int32_t i = 1; i <= count - 1; ++i) {
    for (std::int32_t j = i + 1; j <= count; ++j) {
      if (events[i].Time > events[j].Time) std::swap(events[i], events[j]);
    }
  }
}

GaitSide OppositeSide(GaitSide side) {
  if (side == GaitSide::Left) return GaitSide::Right;
  if (side == GaitSide::Right) return GaitSide::Left;
  return GaitSide::None;
}

void FindValidStrides(FileState& state) {
  GaitEventState& gait = state.GaitEvents;
  SortEventsByTime(gait.SidedStrikeOffCount, gait.SidedStrikeOffEvents);
  SortEventsByTime(gait.SidedGeneralCount, gait.SidedGeneralEvents);
  SortEventsByTime(gait.NonSidedCount, gait.NonSidedEvents);
  FillValidStrides(state);
  FillStrideEvents(gait);
}

void RemoveRepeatedEvents(OneBasedTable<EventRecord>& events) {
  std::int32_t i = 1;
  while (i < events.Count()) {
    if (HasRepeat(events, i)) {
      events.Remove(i + 1);
    } else {
      ++i;
    }
  }
}

void TagStrideEventFrames(FileState& state) {
  const GaitEventState& gait = state.GaitEvents;
  state.StrideEventFrameCount = gait.StrideEventCount;
  state.StrideEventFrames = {};
  for (const EventRecord& event : gait.StrideEvents) {
    const float frames = ToSingle(Divide(event.Time, state.TimeBetweenFrames));
    const std::int32_t frame =
        ToLong(std::int64_t{RoundToLong(frames)} + 1 - state.Header.FirstPointFrameNumber + 1);
    state.StrideEventFrames.Append({frame, event.Side, event.Type});
  }
}

}  // namespace modVantrel
