// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "tests/GaitTrials.h"
#include "tests/OpenWithEvents.h"

namespace {

using namespace modVantrel;
using sample::IntegerParam;
using sample::TextListParam;
using sample::TrialBuilder;
using tests::Entries;
using tests::ErrorNumberOf;
using tests::OpenedWalk;
using tests::OpenWithEvents;

using tests::kInputPastEndOfFile;

// Two hundred frames at 100 Hz, from frame 51: 0.5 s to 2.49 s.
TrialBuilder Capture() { return TrialBuilder().Frames(51, 250).Rate(100); }

sample::ParamSpec Times(std::vector<float> minutesAndSeconds) {
  const auto count = static_cast<std::uint8_t>(minutesAndSeconds.size() / 2);
  return {"TIMES", {2, count}, std::move(minutesAndSeconds), "", false, {}};
}

// A capture whose EVENT group has `contexts` and `labels`, one second each, and says USED = `used`.
TrialBuilder EventGroup(std::int16_t used, const std::vector<std::string>& contexts,
                        const std::vector<std::string>& labels, std::size_t times) {
  std::vector<float> values;
  for (std::size_t i = 0; i < times; ++i) values.insert(values.end(), {0.0F, 1.0F});
  TrialBuilder builder = Capture();
  builder.SetParam("EVENT", IntegerParam("USED", used))
      .SetParam("EVENT", TextListParam("CONTEXTS", contexts))
      .SetParam("EVENT", TextListParam("LABELS", labels))
      .SetParam("EVENT", Times(std::move(values)));
  return builder;
}

std::vector<std::string> Repeated(const std::string& text, std::size_t count) {
  std::vector<std::string> repeated(count, text);
  return repeated;
}

const GaitEventState kNoGaitEvents;

TEST(ExtractGaitEvents, TrialWithoutAnEventGroupHasNone) {
  const OpenedWalk trial = OpenWithEvents(Capture());
  EXPECT_EQ(trial.Result(), OpenResult::Success);
  EXPECT_EQ(trial.Gait(), kNoGaitEvents);
}

TEST(ExtractGaitEvents, UsedZeroHasNone) {
  EXPECT_EQ(OpenWithEvents(EventGroup(0, {"Left"}, {"Foot Strike"}, 1)).Gait(), kNoGaitEvents);
}

TEST(ExtractGaitEvents, UsedThatIsMissingOrNoIntegerHasNone) {
  TrialBuilder events = EventGroup(1, {"Left"}, {"Foot Strike"}, 1);
  EXPECT_EQ(OpenWithEvents(TrialBuilder(events).DropParam("EVENT", "USED")).Gait(), kNoGaitEvents);
  EXPECT_EQ(
      OpenWithEvents(TrialBuilder(events).SetParam("EVENT", sample::SingleParam("USED", 1))).Gait(),
      kNoGaitEvents);
  EXPECT_EQ(
      OpenWithEvents(TrialBuilder(events).SetParam("EVENT", sample::ByteParam("USED", 1))).Gait(),
      kNoGaitEvents);
}

TEST(ExtractGaitEvents, NegativeUsedKeepsItsValueAndEmptyLists) {
  GaitEventState expected;
  expected.TotalCount = -3;
  EXPECT_EQ(OpenWithEvents(EventGroup(-3, {"Left"}, {"Foot Strike"}, 1)).Gait(), expected);
}

TEST(ExtractGaitEvents, MoreUsedThanTimesEmptiesTheWholeState) {
  const OpenedWalk trial =
      OpenWithEvents(EventGroup(6, Repeated("Left", 6), Repeated("Foot Strike", 6), 5));
  EXPECT_EQ(trial.Result(), OpenResult::Success) << "the open itself succeeds";
  EXPECT_EQ(trial.Gait(), kNoGaitEvents) << "the total included";
}

TEST(ExtractGaitEvents, MoreUsedThanContextsOrLabelsEmptiesTheWholeState) {
  EXPECT_EQ(
      OpenWithEvents(EventGroup(6, Repeated("Left", 5), Repeated("Foot Strike", 6), 6)).Gait(),
      kNoGaitEvents);
  EXPECT_EQ(
      OpenWithEvents(EventGroup(6, Repeated("Left", 6), Repeated("Foot Strike", 5), 6)).Gait(),
      kNoGaitEvents);
  EXPECT_EQ(
      OpenWithEvents(EventGroup(32767, Repeated("Left", 6), Repeated("Foot Strike", 6), 6)).Gait(),
      kNoGaitEvents);
}

TEST(ExtractGaitEvents, LabelsAreNeededForEventsWithoutSideToo) {
  EXPECT_EQ(OpenWithEvents(EventGroup(2, Repeated("General", 2), {"Start"}, 2)).Gait(),
            kNoGaitEvents);
}

TEST(ExtractGaitEvents, MissingOrWrongParameterEmptiesTheWholeState) {
  const TrialBuilder events = EventGroup(1, {"Left"}, {"Foot Strike"}, 1);
  ASSERT_EQ(OpenWithEvents(events).Gait().TotalCount, 1);
  for (const std::string param : {"CONTEXTS", "LABELS", "TIMES"}) {
    EXPECT_EQ(OpenWithEvents(TrialBuilder(events).DropParam("EVENT", param)).Gait(), kNoGaitEvents)
        << param;
    EXPECT_EQ(OpenWithEvents(TrialBuilder(events).SetParam("EVENT", IntegerParam(param, 1))).Gait(),
              kNoGaitEvents)
        << param;
  }
}

TEST(ExtractGaitEvents, TimesThatAreNoPairsEmptyTheWholeState) {
  EXPECT_EQ(OpenWithEvents(EventGroup(1, {"Left"}, {"Foot Strike"}, 1)
                               .SetParam("EVENT", sample::SingleListParam("TIMES", {1.0F})))
                .Gait(),
            kNoGaitEvents);
}

TEST(ExtractGaitEvents, DamagedParameterIsAnErrorOfTheOpen) {
  const sample::Trial trial =
      EventGroup(1, {"Left"}, {"Foot Strike"}, 1)
          .SetParam("EVENT", {"TIMES", {255, 255, 255}, std::vector{0.0F}, "", false, {}})
          .Build();
  EXPECT_EQ(ErrorNumberOf([&] { OpenedWalk(trial, FindGaitEvents); }), kInputPastEndOfFile);
}

TEST(ExtractGaitEvents, ReadsOnlyAsManyEventsAsAreUsed) {
  const OpenedWalk trial = OpenWithEvents(
      EventGroup(3, {"Left", "Right", "Left", "Right", "Left"}, Repeated("Foot Off", 5), 5));
  EXPECT_EQ(trial.Gait().TotalCount, 3);
  EXPECT_EQ(trial.Gait().SidedStrikeOffCount, 3);
  EXPECT_EQ(trial.Gait().SidedStrikeOffEvents.Count(), 3);
}

TEST(ExtractGaitEvents, ClassifiesBySideAndType) {
  struct Row {
    std::string Context;
    std::string Label;
    EventRecord Event;
  };
  const std::vector<Row> sided = {
      {"Left", "Foot Strike", {GaitSide::Left, GaitEventType::FootStrike, 1.0F}},
      {"Left", "Foot Off", {GaitSide::Left, GaitEventType::FootOff, 1.0F}},
      {"Right", "Foot Strike", {GaitSide::Right, GaitEventType::FootStrike, 1.0F}},
      {"Right", "Foot Off", {GaitSide::Right, GaitEventType::FootOff, 1.0F}},
      {"left", "FOOT strike", {GaitSide::Left, GaitEventType::FootStrike, 1.0F}}};
  const std::vector<Row> general = {
      {"Left", "Event", {GaitSide::Left, GaitEventType::Other, 1.0F}},
      {"Right", "Event", {GaitSide::Right, GaitEventType::Other, 1.0F}},
      {"Right", "FootStrike", {GaitSide::Right, GaitEventType::Other, 1.0F}}};
  const std::vector<Row> nonSided = {
      {"General", "Foot Strike", {GaitSide::None, GaitEventType::FootStrike, 1.0F}},
      {"General", "Foot Off", {GaitSide::None, GaitEventType::FootOff, 1.0F}},
      {"", "Event", {GaitSide::None, GaitEventType::Other, 1.0F}},
      {"Lefty", "Event", {GaitSide::None, GaitEventType::Other, 1.0F}}};
  const auto check = [](const std::vector<Row>& rows, auto list, auto count) {
    for (const Row& row : rows) {
      const OpenedWalk trial = OpenWithEvents(EventGroup(1, {row.Context}, {row.Label}, 1));
      GaitEventState expected;
      expected.TotalCount = 1;
      expected.*count = 1;
      (expected.*list).Append(row.Event);
      EXPECT_EQ(trial.Gait(), expected) << row.Context << ' ' << row.Label;
    }
  };
  check(sided, &GaitEventState::SidedStrikeOffEvents, &GaitEventState::SidedStrikeOffCount);
  check(general, &GaitEventState::SidedGeneralEvents, &GaitEventState::SidedGeneralCount);
  check(nonSided, &GaitEventState::NonSidedEvents, &GaitEventState::NonSidedCount);
}

TEST(ExtractGaitEvents, ContextPaddedWithBlanksIsItsSide) {
  EXPECT_EQ(OpenWithEvents(EventGroup(1, {"Left      "}, {"Foot Strike   "}, 1))
                .Gait()
                .SidedStrikeOffCount,
            1);
}

TEST(ExtractGaitEvents, ContextPaddedWithNulsIsNoSide) {
  const OpenedWalk trial = OpenWithEvents(
      EventGroup(1, {std::string("Left\0\0\0", 7)}, {std::string("Foot Off\0", 9)}, 1));
  EXPECT_EQ(trial.Gait().NonSidedCount, 1);
  EXPECT_EQ(Entries(trial.Gait().NonSidedEvents),
            (std::vector{EventRecord{GaitSide::None, GaitEventType::Other, 1.0F}}));
}

TEST(ExtractGaitEvents, MinutesAreIgnored) {
  const OpenedWalk trial = OpenWithEvents(TrialBuilder()
                                              .Frames(1, 400)
                                              .AddEvent("Left", "Foot Strike", 0)
                                              .SetParam("EVENT", Times({1.0F, 2.5F})));
  EXPECT_EQ(trial.Gait().SidedStrikeOffEvents[1].Time, 2.5F);
}

TEST(ExtractGaitEvents, TimesOutsideTheCaptureMoveToItsEnds) {
  OpenedWalk trial = OpenWithEvents(Capture()
                                        .AddEvent("Left", "Foot Strike", -0.3F)
                                        .AddEvent("Left", "Foot Strike", 0.2F)
                                        .AddEvent("Left", "Foot Strike", 1.0F)
                                        .AddEvent("Left", "Foot Strike", 99.0F));
  const float start = trial.State().WalkStartTime;
  const float end = trial.State().WalkEndTime;
  EXPECT_EQ(start, 0.5F);
  const auto& events = trial.Gait().SidedStrikeOffEvents;
  ASSERT_EQ(events.Count(), 4);
  EXPECT_EQ(events[1].Time, start);
  EXPECT_EQ(events[2].Time, start);
  EXPECT_EQ(events[3].Time, 1.0F);
  EXPECT_EQ(events[4].Time, end);
}

TEST(ExtractGaitEvents, TimeThatIsNoNumberMakesNoStrideAndNoError) {
  TrialBuilder builder = Capture();
  tests::AddStrideEvents(builder, "Left",
                         {1.0F, std::numeric_limits<float>::quiet_NaN(), 1.5F, 1.6F, 2.0F});
  const OpenedWalk trial = OpenWithEvents(builder);
  EXPECT_EQ(trial.Gait().SidedStrikeOffCount, 5);
  EXPECT_EQ(trial.Gait().ValidStrideCount, 0);
}

TEST(ExtractGaitEvents, SortsEachListByTime) {
  const OpenedWalk trial = OpenWithEvents(Capture()
                                              .AddEvent("Left", "Foot Strike", 2.0F)
                                              .AddEvent("Right", "Foot Off", 1.0F)
                                              .AddEvent("Right", "Event", 1.9F)
                                              .AddEvent("Left", "Event", 0.9F)
                                              .AddEvent("General", "Start", 1.8F)
                                              .AddEvent("General", "Stop", 0.8F));
  EXPECT_EQ(Entries(trial.Gait().SidedStrikeOffEvents),
            (std::vector{EventRecord{GaitSide::Right, GaitEventType::FootOff, 1.0F},
                         EventRecord{GaitSide::Left, GaitEventType::FootStrike, 2.0F}}));
  EXPECT_EQ(Entries(trial.Gait().SidedGeneralEvents),
            (std::vector{EventRecord{GaitSide::Left, GaitEventType::Other, 0.9F},
                         EventRecord{GaitSide::Right, GaitEventType::Other, 1.9F}}));
  EXPECT_EQ(Entries(trial.Gait().NonSidedEvents),
            (std::vector{EventRecord{GaitSide::None, GaitEventType::Other, 0.8F},
                         EventRecord{GaitSide::None, GaitEventType::Other, 1.8F}}));
  EXPECT_EQ(trial.Gait().TotalCount, 6);
}

TEST(ExtractGaitEvents, NextOpenReplacesEverything) {
  TrialBuilder walk = Capture();
  tests::AddStrideEvents(walk, "Left", {1.0F, 1.1F, 1.5F, 1.6F, 2.0F});
  OpenedWalk trial = OpenWithEvents(walk);
  ASSERT_EQ(trial.Gait().ValidStrideCount, 1);
  ASSERT_EQ(trial.State().StrideEventFrameCount, 5);
  Capture().Build().WriteTo(trial.File());
  ASSERT_EQ(OpenC3dFile(trial.State(), trial.File().string(), FindGaitEvents), OpenResult::Success);
  EXPECT_EQ(trial.Gait(), kNoGaitEvents);
  EXPECT_EQ(trial.State().StrideEventFrameCount, 0);
}

TEST(ExtractGaitEvents, EventAtTheStartOfTheCaptureIsOnFrameOne) {
  TrialBuilder walk = Capture();
  tests::AddStrideEvents(walk, "Left", {0.5F, 1.1F, 1.5F, 1.6F, 2.0F});
  OpenedWalk trial = OpenWithEvents(walk);
  ASSERT_EQ(trial.State().StrideEventFrameCount, 5);
  const auto& frames = trial.State().StrideEventFrames;
  EXPECT_EQ(frames[1], (EventFrameRecord{1, GaitSide::Left, GaitEventType::FootStrike}));
  EXPECT_EQ(frames[2], (EventFrameRecord{61, GaitSide::Right, GaitEventType::FootOff}));
  EXPECT_EQ(frames[5], (EventFrameRecord{151, GaitSide::Left, GaitEventType::FootStrike}));
}

TEST(ExtractGaitEvents, KeepsTheOwnTimeOfEventsMoreThanHalfAFrameOutside) {
  // Frames 1 to 10 at 100 Hz: the trial lasts from 0 s to 0.09 s.
  const OpenedWalk trial = OpenWithEvents(TrialBuilder()
                                              .AddEvent("Left", "Foot Strike", -0.004F)
                                              .AddEvent("Left", "Foot Off", -0.006F)
                                              .AddEvent("Right", "Foot Strike", 0.094F)
                                              .AddEvent("Right", "Foot Off", 0.096F));
  EXPECT_EQ(Entries(trial.Gait().OutsideEvents),
            (std::vector{EventRecord{GaitSide::Left, GaitEventType::FootOff, -0.006F},
                         EventRecord{GaitSide::Right, GaitEventType::FootOff, 0.096F}}));
}

}  // namespace
