// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/checkup/CheckedTrials.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::Check;
using tests::CleanWalk;
using tests::CleanWalkWithoutEvents;
using tests::MessageOf;
using tests::Places;

TEST(EventsNone, OfAFileWithoutEvents) {
  const auto findings = Check(CleanWalkWithoutEvents());
  ASSERT_THAT(Places(findings), ElementsAre("events-none at EVENT:USED"));
  EXPECT_THAT(findings[0].Message, HasSubstr("The file has no gait events"));
}

TEST(EventsNone, OfACountOfZero) {
  auto walk = CleanWalk();
  EXPECT_THAT(Places(Check(walk.SetParam("EVENT", sample::IntegerParam("USED", 0)))),
              ElementsAre("events-none at EVENT:USED"));
}

TEST(EventsNone, WhereAParameterIsShortSaysThatAllAreDropped) {
  auto walk = CleanWalk();
  const auto findings =
      Check(walk.SetParam("EVENT", sample::TextListParam("CONTEXTS", {"Left", "Right"})));
  ASSERT_THAT(Places(findings), ElementsAre("events-none at EVENT:CONTEXTS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("EVENT:USED counts 7 events, but EVENT:CONTEXTS has "
                                             "only 2, so all of them are dropped"));
}

TEST(EventsNone, WhereParametersAreMissingNamesThem) {
  auto walk = CleanWalk();
  walk.DropParam("EVENT", "LABELS").DropParam("EVENT", "TIMES");
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("events-none at EVENT:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("EVENT:LABELS is missing and EVENT:TIMES is missing"));
}

TEST(EventOutside, OfTimesThatAreNoNumbersIsOneFinding) {
  auto walk = CleanWalk();
  const auto one = Check(walk.AddEvent("Right", "Foot Strike", std::nanf("")));
  ASSERT_THAT(Places(one), ElementsAre("event-outside at EVENT:TIMES"));
  EXPECT_EQ(one[0].Message,
            "1 event has a time that is no number (Right Foot Strike): no stride takes it, and "
            "strides around it may be lost.");
  const auto two = Check(walk.AddEvent("General", "Stop", std::nanf("")));
  EXPECT_THAT(MessageOf(two, "event-outside"),
              HasSubstr("2 events have a time that is no number (Right Foot Strike and other event "
                        "without side)"));
}

TEST(EventUnsided, OfManyEventsNamesTheFirst) {
  auto walk = CleanWalk();
  for (int i = 1; i <= 9; ++i) {
    walk.AddEvent("General", "Foot Strike", 0.3F * static_cast<float>(i));
  }
  EXPECT_THAT(MessageOf(Check(walk), "event-unsided"),
              HasSubstr("Foot Strike without side at 1.800 s and 3 more."));
}

// The trial ends at 2.99 s.
sample::TrialBuilder WithLastStrikeAt(float seconds) {
  auto walk = CleanWalkWithoutEvents();
  walk.AddEvent("Left", "Foot Strike", 0.2F).AddEvent("Right", "Foot Off", 0.4F);
  walk.AddEvent("Right", "Foot Strike", 1.0F).AddEvent("Left", "Foot Off", 1.2F);
  return walk.AddEvent("Left", "Foot Strike", seconds);
}

TEST(EventOutside, NamesTheStrideThatItMakesIncomplete) {
  const auto findings = Check(WithLastStrikeAt(3.5F));
  ASSERT_THAT(Places(findings), ElementsAre("event-outside at Left Foot Strike at 3.500 s"));
  EXPECT_EQ(findings[0].Message,
            "Left Foot Strike at 3.500 s lies outside the trial (0.000 s to 2.990 s) and is moved "
            "to 2.990 s: Left stride 1 is not complete and left out of all means.");
}

TEST(EventOutside, NeedsMoreThanHalfAFrame) {
  EXPECT_THAT(Places(Check(WithLastStrikeAt(2.995F))), IsEmpty());
  EXPECT_THAT(Places(Check(WithLastStrikeAt(2.9951F))),
              ElementsAre("event-outside at Left Foot Strike at 2.995 s"));
}

TEST(EventOutside, OfAnEventThatNoStrideNeedsSaysSo) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.AddEvent("General", "Stop", 9.0F));
  ASSERT_THAT(Places(findings),
              ElementsAre("event-outside at other event without side at 9.000 s"));
  EXPECT_THAT(findings[0].Message, HasSubstr("no stride needs it"));
}

TEST(EventMinutes, AreOneFindingWithTheEvents) {
  auto walk = CleanWalk();
  walk.EditSection([](sample::SectionSpec& section) {
    for (auto& param : section.Group("EVENT").Params) {
      if (param.Name != "TIMES") continue;
      auto& times = std::get<std::vector<float>>(param.Values);
      times[0] = 1;
      times[2] = 2;
    }
  });
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("event-minutes at EVENT:TIMES"));
  EXPECT_THAT(findings[0].Message,
              HasSubstr("2 of 7 events have minutes beside the seconds (event 1: 1 min 0.200 s and "
                        "event 2: 2 min 0.400 s)"));
}

TEST(EventUnsided, IsANote) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.AddEvent("General", "Foot Strike", 0.7F));
  ASSERT_THAT(Places(findings), ElementsAre("event-unsided at EVENT:CONTEXTS"));
  EXPECT_EQ(findings[0].Level, modVantrel::Severity::Note);
  EXPECT_THAT(findings[0].Message, HasSubstr("Foot Strike without side at 0.700 s"));
}

TEST(EventUnsided, IsNotSaidOfOtherEvents) {
  auto walk = CleanWalk();
  EXPECT_THAT(Places(Check(walk.AddEvent("General", "Start", 0.1F))), IsEmpty());
}

TEST(EventOrder, SaysWhenWhatWasExpected) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.AddEvent("Left", "Foot Strike", 2.3F));
  ASSERT_THAT(Places(findings), ElementsAre("event-order at Left Foot Strike at 2.300 s"));
  EXPECT_THAT(findings[0].Message,
              HasSubstr("Behind Left Foot Strike at 1.800 s a Left Foot Off was expected, but Left "
                        "Foot Strike at 2.300 s comes next"));
}

TEST(EventOrder, IsOneFindingForASideWithTheOtherTimes) {
  auto walk = CleanWalk();
  walk.AddEvent("Left", "Foot Strike", 2.3F).AddEvent("Left", "Foot Strike", 2.8F);
  EXPECT_THAT(MessageOf(Check(walk), "event-order"), HasSubstr("(the same at 2.800 s)"));
}

TEST(EventOrder, LeavesEventsOutsideTheTrialOut) {
  auto walk = CleanWalk();
  EXPECT_THAT(Places(Check(walk.AddEvent("Left", "Foot Strike", 4.0F))),
              ElementsAre("event-outside at Left Foot Strike at 4.000 s"));
}

TEST(EventClose, OfOneTypeAndSideIsNoFaultOfTheOrderToo) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.AddEvent("Left", "Foot Strike", 1.85F));
  ASSERT_THAT(Places(findings), ElementsAre("event-close at Left Foot Strike at 1.850 s"));
  EXPECT_THAT(findings[0].Message, HasSubstr("only 0.050 s behind the one at 1.800 s"));
}

TEST(EventClose, IsFoundThroughAnEventOfTheOtherType) {
  auto walk = CleanWalk();
  walk.AddEvent("Left", "Foot Off", 1.83F).AddEvent("Left", "Foot Strike", 1.88F);
  EXPECT_TRUE(tests::HasCode(Check(walk), "event-close"));
}

TEST(EventClose, IsNotFoundATenthOfASecondApart) {
  for (const float start : {1.2F, 1.3F, 1.8F, 2.1F, 2.7F}) {
    auto walk = CleanWalkWithoutEvents();
    walk.AddEvent("Left", "Foot Strike", start);
    walk.AddEvent("Left", "Foot Off", start + 0.05F);
    walk.AddEvent("Left", "Foot Strike", start + 0.1F);
    EXPECT_FALSE(tests::HasCode(Check(walk), "event-close")) << start;
  }
}

TEST(EventClose, OfBothSidesIsFine) {
  auto walk = CleanWalk();
  EXPECT_FALSE(tests::HasCode(Check(walk), "event-close"));
  auto both = CleanWalkWithoutEvents();
  both.AddEvent("Left", "Foot Strike", 1.0F).AddEvent("Right", "Foot Strike", 1.01F);
  EXPECT_FALSE(tests::HasCode(Check(both), "event-close"));
}

TEST(StridesNone, SaysWhereThePatternBreaks) {
  auto walk = CleanWalkWithoutEvents();
  walk.AddEvent("Left", "Foot Strike", 0.2F).AddEvent("Right", "Foot Off", 0.4F);
  walk.AddEvent("Right", "Foot Strike", 1.0F).AddEvent("Left", "Foot Off", 1.2F);
  const auto ended = Check(walk);
  ASSERT_THAT(Places(ended), ElementsAre("strides-none at Left Foot Strike at 0.200 s"));
  EXPECT_THAT(ended[0].Message,
              HasSubstr("behind 1.200 s a Left Foot Strike is missing: no event follows"));
  const auto broken = Check(walk.AddEvent("Right", "Foot Off", 1.5F));
  EXPECT_THAT(MessageOf(broken, "strides-none"), HasSubstr("Right Foot Off at 1.500 s follows"));
}

TEST(StridesNone, OfSwappedSidesIsFound) {
  auto walk = CleanWalkWithoutEvents();
  walk.AddEvent("Left", "Foot Strike", 0.2F).AddEvent("Left", "Foot Off", 0.4F);
  walk.AddEvent("Right", "Foot Strike", 1.0F).AddEvent("Right", "Foot Off", 1.2F);
  walk.AddEvent("Left", "Foot Strike", 1.8F);
  EXPECT_THAT(MessageOf(Check(walk), "strides-none"),
              HasSubstr("behind 0.200 s a Right Foot Off is missing: Left Foot Off at 0.400 s"));
}

TEST(StridesNone, OfGeneralEventsAloneSaysThatThereIsNoStrike) {
  auto walk = CleanWalkWithoutEvents();
  const auto findings = Check(walk.AddEvent("General", "Start", 0.2F));
  ASSERT_THAT(Places(findings), ElementsAre("strides-none at EVENT:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("no event is a strike or off of the left or right"));
}

TEST(StridesNone, OfEventsOnOneFrameSaysSo) {
  auto walk = CleanWalkWithoutEvents();
  walk.AddEvent("Left", "Foot Strike", 0.2F).AddEvent("Right", "Foot Off", 0.4F);
  walk.AddEvent("Right", "Foot Strike", 1.0F).AddEvent("Left", "Foot Off", 1.001F);
  walk.AddEvent("Left", "Foot Strike", 1.8F);
  EXPECT_THAT(MessageOf(Check(walk), "strides-none"), HasSubstr("fewer than five frames"));
}

}  // namespace
