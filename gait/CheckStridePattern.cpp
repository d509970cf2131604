// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/CheckStridePattern.h"

#include <array>

#include <fmt/format.h>

#include "gait/CheckText.h"
#include "gait/ValidStrides.h"

namespace modVantrel {

namespace {

using EventTable = modAllPurpose::OneBasedTable<EventRecord>;

// One of the five events of a stride.
struct Expected {
  bool IsOwnSide;
  GaitEventType Type;

  GaitSide SideFor(GaitSide own) const { return IsOwnSide ? own : OppositeSide(own); }
};

constexpr std::array kPattern = {
    Expected{true, GaitEventType::FootStrike}, Expected{false, GaitEventType::FootOff},
    Expected{false, GaitEventType::FootStrike}, Expected{true, GaitEventType::FootOff},
    Expected{true, GaitEventType::FootStrike}};

// A run of events that follows the pattern for a while.
struct Run {
  std::int32_t First = 0;   // index of its first event
  std::int32_t Length = 0;  // of the events that fit
};

Run RunFrom(const EventTable& events, std::int32_t first) {
  const GaitSide own = events[first].Side;
  Run run{first, 0};
  for (const Expected& expected : kPattern) {
    const std::int32_t i = first + run.Length;
    if (i > events.Count() || events[i].Type != expected.Type) break;
    if (events[i].Side != expected.SideFor(own)) break;
    ++run.Length;
  }
  return run;
}

// The first of the longest.
Run LongestRun(const EventTable& events) {
  Run longest;
  for (std::int32_t i = 1; i <= events.Count(); ++i) {
    const Run run = RunFrom(events, i);
    if (run.Length > longest.Length) longest = run;
  }
  return longest;
}

// What keeps the longest run from being a stride.
std::string Reason(const EventTable& events, const Run& run) {
  const EventRecord& first = events[run.First];
  if (run.Length == static_cast<std::int32_t>(kPattern.size())) {
    return fmt::format("the five events from {} on stand on fewer than five frames",
                       EventText(first));
  }
  const Expected& expected = kPattern.at(static_cast<std::size_t>(run.Length));
  const std::int32_t next = run.First + run.Length;
  const std::string found = next > events.Count()
                                ? "no event follows"
                                : fmt::format("{} follows", EventText(events[next]));
  return fmt::format("from {} on the events come nearest to one, but behind {} a {} is missing: {}",
                     EventText(first), SecondsText(events[next - 1].Time),
                     EventText(expected.SideFor(first.Side), expected.Type), found);
}

}  // namespace

void CheckStridePattern(const FileState& state, Findings& findings) {
  const GaitEventState& gait = state.GaitEvents;
  if (gait.ValidStrideCount > 0) return;
  const EventTable& events = gait.SidedStrikeOffEvents;
  const Run run = LongestRun(events);
  const std::string reason = events.IsEmpty()
                                 ? "no event is a strike or off of the left or right foot"
                             : run.Length == 0 ? "there is no Foot Strike to begin one"
                                               : Reason(events, run);
  findings.Add("strides-none", run.Length == 0 ? "EVENT:LABELS" : EventText(events[run.First]),
               fmt::format("No stride is complete (strike, opposite off, opposite strike, off, "
                           "strike): {}; without strides there are no measures and no GCD files.",
                           reason));
}

}  // namespace modVantrel
