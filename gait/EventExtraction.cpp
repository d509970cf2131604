// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/EventExtraction.h"

#include <string>

#include "c3d/ParameterSection.h"
#include "gait/EventNames.h"
#include "gait/EventSource.h"
#include "gait/MacEvents.h"
#include "gait/ValidStrides.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::IgnoringErrors;
using modAllPurpose::OneBasedTable;
using modAllPurpose::UpperCase;

namespace {

// The four parameters of the EVENT group.
struct EventParams {
  ParamRecord Used;
  ParamRecord Contexts;
  ParamRecord Labels;
  ParamRecord Times;

  std::string Context(std::int32_t i) const {
    return UpperCase(Contexts.TextValues.At(ElementAt(i)));
  }
  std::string Label(std::int32_t i) const { return UpperCase(Labels.TextValues.At(ElementAt(i))); }
  // The second value of the event's pair. The minutes in front of it are not taken.
  float Seconds(std::int32_t i) const { return Times.SingleValues.At(ElementAt(2, i)); }
};

EventParams FindEventParams(const FileState& state) {
  return {FindGroupAndParam(state, "EVENT", "USED").Param,
          FindGroupAndParam(state, "EVENT", "CONTEXTS").Param,
          FindGroupAndParam(state, "EVENT", "LABELS").Param,
          FindGroupAndParam(state, "EVENT", "TIMES").Param};
}

GaitEventType TypeOf(const std::string& label) {
  if (label == "FOOT STRIKE") return GaitEventType::FootStrike;
  if (label == "FOOT OFF") return GaitEventType::FootOff;
  return GaitEventType::Other;
}

// The list that an event of that side and type belongs to, and its count.
struct EventList {
  std::int32_t& Count;
  OneBasedTable<EventRecord>& Events;
};

EventList ListFor(GaitEventState& events, GaitSide side, GaitEventType type) {
  if (side == GaitSide::None) return {events.NonSidedCount, events.NonSidedEvents};
  if (type == GaitEventType::Other) return {events.SidedGeneralCount, events.SidedGeneralEvents};
  return {events.SidedStrikeOffCount, events.SidedStrikeOffEvents};
}

// Whether `time` lies more than half a frame outside the trial.
bool IsOutside(const FileState& state, float time) {
  const double halfFrame = 0.5 * state.TimeBetweenFrames;
  return time < state.WalkStartTime - halfFrame || time > state.WalkEndTime + halfFrame;
}

void FillEventLists(FileState& state, const EventParams& params) {
  GaitEventState& events = state.GaitEvents;
  for (std::int32_t i = 1; i <= events.TotalCount; ++i) {
    const GaitSide side = SideOfContext(params.Context(i));
    const GaitEventType type = TypeOf(params.Label(i));
    const EventList list = ListFor(events, side, type);
    const EventRecord event{side, type, params.Seconds(i)};
    if (IsOutside(state, event.Time)) events.OutsideEvents.Append(event);
    list.Events.Append({side, type, ClampToWalk(state, event.Time)});
    ++list.Count;
  }
}

[[maybe_unused]] void ExtractFromParams(FileState& state) {
  const EventParams params = FindEventParams(state);
  GaitEventState& events = state.GaitEvents;
  events.TotalCount = params.Used.IntegerValues.First().value_or(0);
  if (events.TotalCount == 0) return;
  const bool complete = IgnoringErrors([&] {
    FillEventLists(state, params);
    FindValidStrides(state);
  });
  if (!complete) events = {};
}

[[maybe_unused]] void ExtractFromSideFile(FileState& state) {
  if (AppendMacEvents(state)) FindValidStrides(state);
}

}  // namespace

void ExtractGaitEvents(FileState& state) {
  state.GaitEvents = {};
  if constexpr (kEventSource == EventSource::EventFile) {
    ExtractFromSideFile(state);
  } else {
    ExtractFromParams(state);
  }
}

void FindGaitEvents(FileState& state) {
  ExtractGaitEvents(state);
  TagStrideEventFrames(state);
}

}  // namespace modVantrel
