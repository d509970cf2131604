// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>

#include <benchmark/benchmark.h>

#include "bench/SizedTrials.h"
#include "gait/ValidStrides.h"

// The two rules that are quadratic by their definition, over 255 events, the most that an EVENT
// group holds, and over ten and a hundred times as many.
namespace {

using modVantrel::EventRecord;
using modVantrel::GaitEventType;
using modVantrel::GaitSide;
using Events = modAllPurpose::OneBasedTable<EventRecord>;

constexpr int kMostEvents = 255;

// Sides and types by turns.
GaitSide SideOf(std::int32_t i) { return i % 2 == 0 ? GaitSide::Left : GaitSide::Right; }
GaitEventType TypeOf(std::int32_t i) {
  return i % 2 == 0 ? GaitEventType::FootStrike : GaitEventType::FootOff;
}

// Events in no order.
Events ShuffledEvents(const benchmark::State& run) {
  Events events;
  const auto count = kMostEvents * static_cast<std::int32_t>(run.range(0));
  for (std::int32_t i = 0; i < count; ++i) {
    const auto place = static_cast<std::int32_t>(std::int64_t{i} * 7919 % count);
    events.Append({SideOf(place), TypeOf(place / 2), 0.1F * static_cast<float>(place)});
  }
  return events;
}

// The events of overlapping strides: three of the five are those of the stride before.
Events EventsOfStrides(const benchmark::State& run) {
  constexpr int kEventsAStride = 5;
  Events events;
  const auto strides = kMostEvents * static_cast<std::int32_t>(run.range(0)) / kEventsAStride;
  for (std::int32_t i = 0; i < strides; ++i) {
    for (std::int32_t k = 2 * i; k < 2 * i + kEventsAStride; ++k) {
      events.Append({SideOf(k / 2), TypeOf(k), static_cast<float>(k)});
    }
  }
  return events;
}

void SortOfEvents(benchmark::State& run) {
  const Events shuffled = ShuffledEvents(run);
  while (run.KeepRunning()) {
    Events events = shuffled;
    modVantrel::SortEventsByTime(events.Count(), events);
    benchmark::DoNotOptimize(events);
  }
}

void RemovalOfRepeats(benchmark::State& run) {
  const Events repeated = EventsOfStrides(run);
  while (run.KeepRunning()) {
    Events events = repeated;
    modVantrel::RemoveRepeatedEvents(events);
    benchmark::DoNotOptimize(events);
  }
}

BENCHMARK(SortOfEvents)->Apply(bench::InThreeSizes);
BENCHMARK(RemovalOfRepeats)->Apply(bench::InThreeSizes);

}  // namespace
