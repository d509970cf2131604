// SPDX-License-Identifier: GPL-3.0-or-later

#include <vector>

#include <gtest/gtest.h>

#include "gait/ValidStrides.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;

using tests::kOverflow;

// The frame of an event at `seconds` at 64 frames per second, where times are exact.
std::int32_t FrameOf(float seconds, std::int16_t firstFrame = 1) {
  FileState state = tests::StateWithEvents({}, 64);
  state.Header.FirstPointFrameNumber = firstFrame;
  state.GaitEvents.StrideEvents.Append({GaitSide::Left, GaitEventType::FootStrike, seconds});
  state.GaitEvents.StrideEventCount = 1;
  TagStrideEventFrames(state);
  return state.StrideEventFrames[1].Frame;
}

TEST(TagStrideEventFrames, CountsFromTheFirstFrameOfTheFile) {
  EXPECT_EQ(FrameOf(0), 1);
  EXPECT_EQ(FrameOf(10.0F / 64), 11);
  EXPECT_EQ(FrameOf(10.0F / 64, 11), 1) << "the start of a walk from frame 11";
  EXPECT_EQ(FrameOf(30.0F / 64, 11), 21);
}

TEST(TagStrideEventFrames, HalvesRoundToTheEvenNeighbour) {
  EXPECT_EQ(FrameOf(2.5F / 64), 3);
  EXPECT_EQ(FrameOf(3.5F / 64), 5);
  EXPECT_EQ(FrameOf(2.75F / 64), 4);
}

TEST(TagStrideEventFrames, QuotientIsRoundedToAFloatFirst) {
  // At 100 Hz the time between frames is a little below 0.01: the quotient of 0.125 lies above 12.5
  // and is 12.5 as a float, which rounds to 12.
  FileState state = tests::StateWithEvents({}, 100);
  ASSERT_GT(0.125 / state.TimeBetweenFrames, 12.5);
  state.GaitEvents.StrideEvents.Append({GaitSide::Left, GaitEventType::FootStrike, 0.125F});
  state.GaitEvents.StrideEventCount = 1;
  TagStrideEventFrames(state);
  EXPECT_EQ(state.StrideEventFrames[1].Frame, 13);
}

TEST(TagStrideEventFrames, CopiesSideAndType) {
  FileState state = tests::StateWithEvents({}, 64);
  state.GaitEvents.StrideEvents.Append({GaitSide::Right, GaitEventType::FootOff, 1});
  state.GaitEvents.StrideEventCount = 1;
  TagStrideEventFrames(state);
  EXPECT_EQ(state.StrideEventFrames[1],
            (EventFrameRecord{65, GaitSide::Right, GaitEventType::FootOff}));
}

TEST(TagStrideEventFrames, FrameOutsideTheFileIsKept) {
  EXPECT_EQ(FrameOf(0, 11), -9);
  EXPECT_EQ(FrameOf(4096), 262145);
}

TEST(TagStrideEventFrames, WithoutStrideEventsNothingIsLeft) {
  FileState state = tests::StateWithEvents({}, 64);
  state.StrideEventFrameCount = 3;
  state.StrideEventFrames = modAllPurpose::OneBasedTable<EventFrameRecord>(3);
  TagStrideEventFrames(state);
  EXPECT_EQ(state.StrideEventFrameCount, 0);
}

TEST(TagStrideEventFrames, FrameThatIsNoLongIsAnOverflow) {
  EXPECT_EQ(tests::ErrorNumberOf([] { FrameOf(1e9F); }), kOverflow);
}

}  // namespace
