// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "gait/EventNames.h"
#include "gait/ValidStrides.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using tests::Entries;
using tests::StateWithEvents;

using Events = std::vector<EventRecord>;

constexpr GaitEventType kStrike = GaitEventType::FootStrike;
constexpr GaitEventType kOff = GaitEventType::FootOff;

const Events kGoodPattern = {{GaitSide::Left, kStrike, 1.00F},
                             {GaitSide::Right, kOff, 1.10F},
                             {GaitSide::Right, kStrike, 1.50F},
                             {GaitSide::Left, kOff, 1.60F},
                             {GaitSide::Left, kStrike, 2.00F}};

GaitEventState Search(const Events& events, float rate = 100.0F) {
  FileState state = StateWithEvents(events, rate);
  FindValidStrides(state);
  return state.GaitEvents;
}

// Two full cycles of both feet.
Events TwoCycles() {
  Events events = kGoodPattern;
  for (const EventRecord& event : Events{{GaitSide::Right, kOff, 2.10F},
                                         {GaitSide::Right, kStrike, 2.50F},
                                         {GaitSide::Left, kOff, 2.60F},
                                         {GaitSide::Left, kStrike, 3.00F}}) {
    events.push_back(event);
  }
  return events;
}

TEST(FindValidStrides, FiveEventsOfThePatternAreAStride) {
  const GaitEventState gait = Search(kGoodPattern);
  ASSERT_EQ(gait.ValidStrideCount, 1);
  EXPECT_EQ(gait.ValidStrides[1],
            (StrideRecord{GaitSide::Left, 1, 1.00F, 1.10F, 1.50F, 1.60F, 2.00F}));
  EXPECT_EQ(gait.StrideEventCount, 5);
  EXPECT_EQ(Entries(gait.StrideEvents), kGoodPattern);
}

TEST(FindValidStrides, OfAllSequencesOfFiveEventsOnlyTheTwoPatternsAreStrides) {
  const Events kinds = {{GaitSide::Left, kStrike, 0},
                        {GaitSide::Left, kOff, 0},
                        {GaitSide::Right, kStrike, 0},
                        {GaitSide::Right, kOff, 0}};
  std::vector<StrideRecord> found;
  for (unsigned sequence = 0; sequence < 1024; ++sequence) {
    Events events;
    for (unsigned i = 0; i < 5; ++i) {
      events.push_back(kinds[(sequence >> (2 * i)) % 4]);
      events.back().Time = kGoodPattern[i].Time;
    }
    for (const StrideRecord& stride : Search(events).ValidStrides) found.push_back(stride);
  }
  ASSERT_EQ(found.size(), 2U);
  EXPECT_NE(found[0].Side, found[1].Side);
  for (const StrideRecord& stride : found) EXPECT_EQ(stride.Number, 1);
}

TEST(FindValidStrides, EventMissingAtAnyPlaceMakesNoStride) {
  for (std::size_t i = 0; i < 5; ++i) {
    Events events = kGoodPattern;
    events.erase(events.begin() + static_cast<std::ptrdiff_t>(i));
    EXPECT_EQ(Search(events).ValidStrideCount, 0) << i;
  }
}

TEST(FindValidStrides, NeighboursSwappedAtAnyPlaceMakeNoStride) {
  for (std::size_t i = 0; i < 4; ++i) {
    Events events = kGoodPattern;
    std::swap(events[i].Time, events[i + 1].Time);
    EXPECT_EQ(Search(events).ValidStrideCount, 0) << i;
  }
}

TEST(FindValidStrides, WrongSideAtAnyPlaceMakesNoStride) {
  for (std::size_t i = 0; i < 5; ++i) {
    Events events = kGoodPattern;
    events[i].Side = OppositeSide(events[i].Side);
    EXPECT_EQ(Search(events).ValidStrideCount, 0) << i;
  }
}

TEST(FindValidStrides, WrongTypeAtAnyPlaceMakesNoStride) {
  for (std::size_t i = 0; i < 5; ++i) {
    Events events = kGoodPattern;
    events[i].Type = events[i].Type == kStrike ? kOff : kStrike;
    EXPECT_EQ(Search(events).ValidStrideCount, 0) << i;
  }
}

TEST(FindValidStrides, EventWithinAFrameOfTheOneBeforeAtAnyPlaceMakesNoStride) {
  for (std::size_t i = 1; i < 5; ++i) {
    Events events = kGoodPattern;
    events[i].Time = events[i - 1].Time + 0.005F;
    for (std::size_t k = i + 1; k < 5; ++k) ASSERT_GT(events[k].Time, events[i].Time);
    EXPECT_EQ(Search(events).ValidStrideCount, 0) << i;
  }
}

TEST(FindValidStrides, ExtraSidedEventAtAnyPlaceBreaksTheStride) {
  for (std::size_t i = 1; i < 5; ++i) {
    for (const GaitSide side : {GaitSide::Left, GaitSide::Right}) {
      for (const GaitEventType type : {kStrike, kOff}) {
        Events events = kGoodPattern;
        events.push_back({side, type, 0.5F * (events[i - 1].Time + events[i].Time)});
        // Another stride may begin or end with the extra event, this one is gone.
        for (const StrideRecord& stride : Search(events).ValidStrides) {
          EXPECT_FALSE(stride.StartStrikeTime == 1.00F && stride.StopStrikeTime == 2.00F)
              << i << ' ' << SideName(side) << ' ' << EventTypeName(type);
        }
      }
    }
  }
}

TEST(FindValidStrides, RightStrikeWithinTheStrideMakesNoStride) {
  Events events = kGoodPattern;
  events.push_back({GaitSide::Right, kStrike, 1.30F});
  EXPECT_EQ(Search(events).ValidStrideCount, 0);
}

TEST(FindValidStrides, EventsOfTheOtherListsPlayNoPart) {
  FileState state = StateWithEvents(kGoodPattern);
  state.GaitEvents.SidedGeneralEvents.Append({GaitSide::Left, GaitEventType::Other, 1.3F});
  state.GaitEvents.SidedGeneralCount = 1;
  state.GaitEvents.NonSidedEvents.Append({GaitSide::None, kStrike, 1.4F});
  state.GaitEvents.NonSidedCount = 1;
  FindValidStrides(state);
  EXPECT_EQ(state.GaitEvents.ValidStrideCount, 1);
}

TEST(FindValidStrides, FourEventsOrNoneMakeNoStride) {
  EXPECT_EQ(Search(Events(kGoodPattern.begin(), kGoodPattern.end() - 1)).ValidStrideCount, 0);
  const GaitEventState gait = Search({});
  EXPECT_EQ(gait.ValidStrideCount, 0);
  EXPECT_EQ(gait.StrideEventCount, 0);
  EXPECT_TRUE(gait.StrideEvents.IsEmpty());
}

TEST(FindValidStrides, NumbersEachSideByItselfInTheOrderOfTheStarts) {
  const GaitEventState gait = Search(TwoCycles());
  ASSERT_EQ(gait.ValidStrideCount, 3);
  EXPECT_EQ(gait.ValidStrides[1],
            (StrideRecord{GaitSide::Left, 1, 1.00F, 1.10F, 1.50F, 1.60F, 2.00F}));
  EXPECT_EQ(gait.ValidStrides[2],
            (StrideRecord{GaitSide::Right, 1, 1.50F, 1.60F, 2.00F, 2.10F, 2.50F}));
  EXPECT_EQ(gait.ValidStrides[3],
            (StrideRecord{GaitSide::Left, 2, 2.00F, 2.10F, 2.50F, 2.60F, 3.00F}));
}

TEST(FindValidStrides, StrideEventsOfOverlappingStridesStandOnceEachInTimeOrder) {
  const GaitEventState gait = Search(TwoCycles());
  EXPECT_EQ(gait.StrideEventCount, 9);
  EXPECT_EQ(Entries(gait.StrideEvents), TwoCycles());
}

TEST(FindValidStrides, NumberingGoesOnAcrossABreak) {
  Events events = TwoCycles();
  for (EventRecord event : kGoodPattern) {
    event.Time += 4.0F;
    events.push_back(event);
  }
  const GaitEventState gait = Search(events);
  ASSERT_EQ(gait.ValidStrideCount, 4);
  EXPECT_EQ(gait.ValidStrides[4].Side, GaitSide::Left);
  EXPECT_EQ(gait.ValidStrides[4].Number, 3);
}

TEST(FindValidStrides, TakesTheEventsInAnyOrder) {
  Events events = TwoCycles();
  std::reverse(events.begin(), events.end());
  EXPECT_EQ(Search(events), Search(TwoCycles()));
}

TEST(FindValidStrides, StrideOfTheRightFootMirrorsThatOfTheLeft) {
  Events events = kGoodPattern;
  for (EventRecord& event : events) event.Side = OppositeSide(event.Side);
  const GaitEventState gait = Search(events);
  ASSERT_EQ(gait.ValidStrideCount, 1);
  EXPECT_EQ(gait.ValidStrides[1],
            (StrideRecord{GaitSide::Right, 1, 1.00F, 1.10F, 1.50F, 1.60F, 2.00F}));
  EXPECT_EQ(Entries(gait.StrideEvents), events);
}

// The gap that two events must exceed: 0.8 frames, as a 32-bit float.
float LeastApart(float rate) {
  const auto timeBetweenFrames = static_cast<float>(1.0 / rate);
  return static_cast<float>(0.8 * timeBetweenFrames);
}

// The good pattern from time 0 on, its second event at `gap`.
std::int32_t StridesWithFirstGap(float start, float gap, float rate) {
  return Search({{GaitSide::Left, kStrike, start},
                 {GaitSide::Right, kOff, gap},
                 {GaitSide::Right, kStrike, 1.5F},
                 {GaitSide::Left, kOff, 1.6F},
                 {GaitSide::Left, kStrike, 2.0F}},
                rate)
      .ValidStrideCount;
}

TEST(StrideTolerance, GapMustExceedFourFifthsOfAFrame) {
  for (const float rate : {50.0F, 60.0F, 64.0F, 100.0F, 120.0F, 200.0F, 1000.0F}) {
    const float least = LeastApart(rate);
    EXPECT_EQ(StridesWithFirstGap(0, least, rate), 0) << rate;
    EXPECT_EQ(StridesWithFirstGap(0, std::nextafter(least, 1.0F), rate), 1) << rate;
  }
}

TEST(StrideTolerance, ProductIsRoundedToAFloatBeforeItIsCompared) {
  const float least = LeastApart(64);
  ASSERT_GT(double{least}, 0.8 * (1.0 / 64.0)) << "the float lies above the product";
  EXPECT_EQ(StridesWithFirstGap(0, least, 64), 0);
}

TEST(StrideTolerance, DifferenceIsRoundedToAFloatBeforeItIsCompared) {
  const float least = LeastApart(100);
  const float next = std::nextafter(least, 1.0F);
  const double ulp = double{next} - double{least};
  const auto start = static_cast<float>(0.75 * ulp);
  ASSERT_GT(double{next} - double{start}, double{least}) << "the exact difference is larger";
  EXPECT_EQ(StridesWithFirstGap(start, next, 100), 0);
}

TEST(StrideTolerance, EventsOfEqualTimesAreNotOnDifferentFrames) {
  Events events = kGoodPattern;
  events[1].Time = events[0].Time;
  EXPECT_EQ(Search(events).ValidStrideCount, 0);
}

modAllPurpose::OneBasedTable<EventRecord> TableOf(const Events& events) {
  modAllPurpose::OneBasedTable<EventRecord> table;
  for (const EventRecord& event : events) table.Append(event);
  return table;
}

TEST(SortEventsByTime, ExchangeMovesOneOfTwoEqualTimesPastTheOther) {
  auto events = TableOf(
      {{GaitSide::Left, kStrike, 2}, {GaitSide::Right, kOff, 2}, {GaitSide::Left, kOff, 1}});
  SortEventsByTime(3, events);
  EXPECT_EQ(
      Entries(events),
      (Events{{GaitSide::Left, kOff, 1}, {GaitSide::Right, kOff, 2}, {GaitSide::Left, kStrike, 2}}))
      << "a stable sort would keep the strike before the off";
}

TEST(SortEventsByTime, EqualTimesAreNeverExchangedThemselves) {
  auto events = TableOf(
      {{GaitSide::Left, kStrike, 1}, {GaitSide::Right, kOff, 2}, {GaitSide::Left, kOff, 2}});
  const auto before = events;
  SortEventsByTime(3, events);
  EXPECT_EQ(events, before);
}

TEST(SortEventsByTime, TouchesOnlyAsManyAsCounted) {
  auto events = TableOf(
      {{GaitSide::Left, kStrike, 3}, {GaitSide::Left, kStrike, 2}, {GaitSide::Left, kStrike, 1}});
  SortEventsByTime(2, events);
  EXPECT_EQ(Entries(events), (Events{{GaitSide::Left, kStrike, 2},
                                     {GaitSide::Left, kStrike, 3},
                                     {GaitSide::Left, kStrike, 1}}));
  SortEventsByTime(1, events);
  SortEventsByTime(0, events);
  SortEventsByTime(-4, events);
  EXPECT_EQ(Entries(events), (Events{{GaitSide::Left, kStrike, 2},
                                     {GaitSide::Left, kStrike, 3},
                                     {GaitSide::Left, kStrike, 1}}));
}

TEST(OppositeSide, IsTheOtherFootOrNone) {
  EXPECT_EQ(OppositeSide(GaitSide::Left), GaitSide::Right);
  EXPECT_EQ(OppositeSide(GaitSide::Right), GaitSide::Left);
  EXPECT_EQ(OppositeSide(GaitSide::None), GaitSide::None);
  EXPECT_EQ(OppositeSide(static_cast<GaitSide>(3)), GaitSide::None);
  EXPECT_EQ(OppositeSide(static_cast<GaitSide>(-1)), GaitSide::None);
}

Events WithoutRepeats(const Events& events) {
  auto table = TableOf(events);
  RemoveRepeatedEvents(table);
  return Entries(table);
}

TEST(RemoveRepeatedEvents, DropsTheRecordBehindNotTheRepeat) {
  const EventRecord a{GaitSide::Left, kStrike, 1};
  const EventRecord b{GaitSide::Right, kOff, 2};
  const EventRecord c{GaitSide::Right, kStrike, 3};
  EXPECT_EQ(WithoutRepeats({a, a, b}), (Events{a, b}));
  EXPECT_EQ(WithoutRepeats({a, b, a}), (Events{a})) << "b goes on the way to the repeat";
  EXPECT_EQ(WithoutRepeats({a, b, c, a, b}), (Events{a, b})) << "b and c go, then the repeat";
  EXPECT_EQ(WithoutRepeats({c, a, b, b}), (Events{c, a, b}));
}

TEST(RemoveRepeatedEvents, KeepsWhatDiffersInSideTypeOrTime) {
  const Events events = {{GaitSide::Left, kStrike, 1},
                         {GaitSide::Right, kStrike, 1},
                         {GaitSide::Left, kOff, 1},
                         {GaitSide::Left, kStrike, std::nextafter(1.0F, 2.0F)}};
  EXPECT_EQ(WithoutRepeats(events), events);
  EXPECT_TRUE(WithoutRepeats({}).empty());
  EXPECT_EQ(WithoutRepeats({events[0]}), Events{events[0]});
}

TEST(RemoveRepeatedEvents, TimesAreEqualWhenTheirBitsAre) {
  EXPECT_EQ(
      WithoutRepeats({{GaitSide::Left, kStrike, 0.0F}, {GaitSide::Left, kStrike, -0.0F}}).size(),
      2U);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(WithoutRepeats({{GaitSide::Left, kStrike, nan}, {GaitSide::Left, kStrike, nan}}).size(),
            1U);
}

}  // namespace
