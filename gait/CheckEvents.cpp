// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include <fmt/format.h>

#include "gait/CheckStridePattern.h"
#include "gait/CheckText.h"
#include "gait/Checks.h"
#include "gait/StrideEvents.h"

namespace modVantrel {

namespace {

using Events = std::vector<EventRecord>;

// How many events an array of one entry each holds, at most `used`.
template <typename Array>
std::int32_t HeldCount(const Array& array, std::int32_t used, bool hasPairs = false) {
  std::int32_t count = 0;
  while (count < used && array.Holds(hasPairs ? ElementAt(2, count + 1) : ElementAt(count + 1))) {
    ++count;
  }
  return count;
}

void AddNoEvents(Findings& findings, const std::string& place, const std::string& reason) {
  findings.Add("events-none", place,
               fmt::format("{}: there are no strides, no measures and no GCD files.", reason));
}

// Why the events that EVENT:USED counts were dropped.
void CheckDropped(const CheckedTrial& trial, std::int32_t used, Findings& findings) {
  struct Held {
    const char* Name;
    std::int32_t Count;
  };
  const std::array helds = {
      Held{"CONTEXTS", HeldCount(trial.Param("EVENT", "CONTEXTS").TextValues, used)},
      Held{"LABELS", HeldCount(trial.Param("EVENT", "LABELS").TextValues, used)},
      Held{"TIMES", HeldCount(trial.Param("EVENT", "TIMES").SingleValues, used, true)}};
  std::vector<std::string> reasons;
  std::string place;
  for (const Held& held : helds) {
    if (held.Count >= used) continue;
    if (place.empty()) place = std::string("EVENT:") + held.Name;
    reasons.push_back(held.Count == 0 ? fmt::format("EVENT:{} is missing", held.Name)
                                      : fmt::format("EVENT:{} has only {}", held.Name, held.Count));
  }
  if (reasons.empty()) {
    place = "EVENT:TIMES";
    reasons.emplace_back("their times cannot be put in order");
  }
  AddNoEvents(findings, place,
              fmt::format("EVENT:USED counts {}, but {}, so all of them are dropped",
                          Counted(used, "event"), Listed(reasons)));
}

bool CheckAny(const CheckedTrial& trial, Findings& findings) {
  if (trial.State.GaitEvents.TotalCount > 0) return true;
  const auto used = trial.Param("EVENT", "USED").IntegerValues.First();
  if (used && *used > 0) {
    CheckDropped(trial, *used, findings);
  } else {
    AddNoEvents(findings, "EVENT:USED", "The file has no gait events");
  }
  return false;
}

std::vector<std::string> StridesWith(const FileState& state, const EventRecord& moved) {
  std::vector<std::string> strides;
  for (const StrideRecord& stride : state.GaitEvents.ValidStrides) {
    const auto events = EventsOf(stride);
    if (std::ranges::find(events, moved) != events.end()) strides.push_back(StrideText(stride));
  }
  return strides;
}

void CheckOutside(const FileState& state, Findings& findings) {
  for (const EventRecord& event : state.GaitEvents.OutsideEvents) {
    EventRecord moved = event;
    moved.Time = ClampToWalk(state, event.Time);
    const auto strides = StridesWith(state, moved);
    const std::string effect =
        strides.empty() ? std::string("no stride needs it")
                        : fmt::format("{} {} not complete and left out of all means",
                                      Listed(strides), strides.size() == 1 ? "is" : "are");
    findings.Add("event-outside", EventText(event),
                 fmt::format("{} lies outside the trial ({} to {}) and is moved to {}: {}.",
                             EventText(event), SecondsText(state.WalkStartTime),
                             SecondsText(state.WalkEndTime), SecondsText(moved.Time), effect));
  }
}

bool HasNoTime(const EventRecord& event) { return std::isnan(event.Time); }

// Events whose time is no number lie nowhere in the trial: one finding for all of them.
void CheckTimeless(const FileState& state, Findings& findings) {
  const GaitEventState& gait = state.GaitEvents;
  std::vector<std::string> found;
  for (const auto* events :
       {&gait.SidedStrikeOffEvents, &gait.SidedGeneralEvents, &gait.NonSidedEvents}) {
    for (const EventRecord& event : *events) {
      if (HasNoTime(event)) found.push_back(EventText(event.Side, event.Type));
    }
  }
  if (found.empty()) return;
  const bool isOne = found.size() == 1;
  findings.Add(
      "event-outside", "EVENT:TIMES",
      fmt::format("{} {} a time that is no number ({}): no stride takes {}, and strides "
                  "around {} may be lost.",
                  Counted(static_cast<std::int64_t>(found.size()), "event"), isOne ? "has" : "have",
                  Listed(found), isOne ? "it" : "them", isOne ? "it" : "them"));
}

void CheckMinutes(const CheckedTrial& trial, Findings& findings) {
  const auto times = trial.Param("EVENT", "TIMES").SingleValues;
  const std::int32_t count = HeldCount(times, trial.State.GaitEvents.TotalCount, true);
  std::vector<std::string> found;
  for (std::int32_t i = 1; i <= count; ++i) {
    const float minutes = times.At(ElementAt(1, i));
    if (minutes == 0) continue;
    found.push_back(fmt::format("event {}: {} min {}", i, NumberText(minutes),
                                SecondsText(times.At(ElementAt(2, i)))));
  }
  if (found.empty()) return;
  findings.Add(
      "event-minutes", "EVENT:TIMES",
      fmt::format("{} of {} minutes beside the seconds ({}): minutes do not count, so "
                  "such an event stands at its seconds alone.",
                  found.size() == 1 ? "1" : fmt::format("{}", found.size()),
                  fmt::format("{} {}", Counted(count, "event"), found.size() == 1 ? "has" : "have"),
                  Listed(found)));
}

void CheckUnsided(const FileState& state, Findings& findings) {
  std::vector<std::string> found;
  for (const EventRecord& event : state.GaitEvents.NonSidedEvents) {
    if (event.Type != GaitEventType::Other) found.push_back(EventText(event));
  }
  if (found.empty()) return;
  findings.Add(
      "event-unsided", "EVENT:CONTEXTS",
      fmt::format("{} neither Left nor Right for a side and {} part in no stride: {}.",
                  fmt::format("{} {}", Counted(static_cast<std::int64_t>(found.size()), "event"),
                              found.size() == 1 ? "has" : "have"),
                  found.size() == 1 ? "takes" : "take", Listed(found)));
}

// The strikes and offs of a side that lie inside the trial, by time.
Events EventsInside(const FileState& state, GaitSide side) {
  Events moved;
  for (EventRecord event : state.GaitEvents.OutsideEvents) {
    event.Time = ClampToWalk(state, event.Time);
    moved.push_back(event);
  }
  Events inside;
  for (const EventRecord& event : state.GaitEvents.SidedStrikeOffEvents) {
    if (event.Side != side || HasNoTime(event)) continue;
    const auto found = std::ranges::find(moved, event);
    if (found == moved.end()) {
      inside.push_back(event);
    } else {
      moved.erase(found);
    }
  }
  return inside;
}

// Less than 0.1 s apart; times are floats, so what is 0.1 s in the file may come out a little less.
bool AreClose(const EventRecord& first, const EventRecord& second) {
  constexpr double kLeastApart = 0.1;
  const double later = std::max(std::fabs(double{first.Time}), std::fabs(double{second.Time}));
  const double rounding = 2 * double{std::numeric_limits<float>::epsilon()} * later;
  return double{second.Time} - first.Time < kLeastApart - rounding;
}

GaitEventType Other(GaitEventType type) {
  return type == GaitEventType::FootStrike ? GaitEventType::FootOff : GaitEventType::FootStrike;
}

// Two events that stand close are one fault, told as such.
void CheckOrder(const Events& events, Findings& findings) {
  std::vector<std::string> further;
  std::optional<std::size_t> first;
  for (std::size_t i = 1; i < events.size(); ++i) {
    if (events[i].Type != events[i - 1].Type || AreClose(events[i - 1], events[i])) continue;
    if (first) further.push_back(SecondsText(events[i].Time));
    if (!first) first = i;
  }
  if (!first) return;
  const EventRecord& before = events[*first - 1];
  const EventRecord& event = events[*first];
  findings.Add(
      "event-order", EventText(event),
      fmt::format("Behind {} a {} was expected, but {} comes next{}: an event is missing, "
                  "or its side or kind is wrong, and strides around it are lost.",
                  EventText(before), EventText(before.Side, Other(before.Type)), EventText(event),
                  further.empty() ? "" : fmt::format(" (the same at {})", Listed(further))));
}

void CheckClose(const Events& events, Findings& findings) {
  for (const GaitEventType type : {GaitEventType::FootStrike, GaitEventType::FootOff}) {
    std::optional<EventRecord> before;
    for (const EventRecord& event : events) {
      if (event.Type != type) continue;
      if (before && AreClose(*before, event)) {
        findings.Add("event-close", EventText(event),
                     fmt::format("{} comes only {} behind the one at {}: one of both was likely "
                                 "set twice, and strides around it are lost.",
                                 EventText(event), SecondsText(double{event.Time} - before->Time),
                                 SecondsText(before->Time)));
      }
      before = event;
    }
  }
}

}  // namespace

void CheckEvents(const CheckedTrial& trial, Findings& findings) {
  const FileState& state = trial.State;
  if (!trial.HasTimes() || !CheckAny(trial, findings)) return;
  CheckOutside(state, findings);
  CheckTimeless(state, findings);
  CheckMinutes(trial, findings);
  CheckUnsided(state, findings);
  for (const GaitSide side : {GaitSide::Left, GaitSide::Right}) {
    const Events events = EventsInside(state, side);
    CheckOrder(events, findings);
    CheckClose(events, findings);
  }
  CheckStridePattern(state, findings);
}

}  // namespace modVantrel
