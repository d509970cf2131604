// SPDX-License-Identifier: GPL-3.0-or-later

#include <vector>

#include <gtest/gtest.h>

#include "gait/StrideEvents.h"
#include "tests/visit/VisitWalks.h"
#include "visit/StrideSelection.h"

namespace {

using tests::Opened;
using tests::OpenedWalk;

// 81 frames at 64 Hz, counted from `first`; the first one is at 0 s where that is 1.
sample::TrialBuilder Frames(std::int16_t first = 1) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Rate(64);
  return builder.Frames(first, static_cast<std::int16_t>(first + 80));
}

constexpr float kFrame = 1.0F / 64;

std::vector<std::int32_t> CompleteOf(const sample::TrialBuilder& builder) {
  OpenedWalk walk = Opened(builder);
  EXPECT_EQ(walk.Gait().ValidStrideCount, 1);
  return visit::CompleteStrides(walk.State());
}

// Whether a left stride of these times is complete.
bool IsComplete(const tests::StrideTimes& times) {
  sample::TrialBuilder builder = Frames();
  tests::AddStrideEvents(builder, "Left", times);
  return CompleteOf(builder) == std::vector{1};
}

TEST(StrideSelection, StrideInsideTheTrialIsComplete) {
  EXPECT_TRUE(IsComplete(tests::kWholeFrameStride));
  EXPECT_TRUE(IsComplete({0, 21 * kFrame, 41 * kFrame, 46 * kFrame, 80 * kFrame}))
      << "from its first frame to its last";
}

TEST(StrideSelection, StrideWithAnEventMovedToTheEdgeIsNotComplete) {
  EXPECT_FALSE(IsComplete({-kFrame, 21 * kFrame, 41 * kFrame, 46 * kFrame, 66 * kFrame}));
  EXPECT_FALSE(IsComplete({16 * kFrame, 21 * kFrame, 41 * kFrame, 46 * kFrame, 81 * kFrame}));
}

TEST(StrideSelection, HalfAFrameOutsideIsStillInside) {
  EXPECT_TRUE(IsComplete({-kFrame / 2, 21 * kFrame, 41 * kFrame, 46 * kFrame, 66 * kFrame}));
  EXPECT_TRUE(IsComplete({16 * kFrame, 21 * kFrame, 41 * kFrame, 46 * kFrame, 80.5F * kFrame}));
}

TEST(StrideSelection, EventOutsideThatTheStrideDoesNotUseDoesNotMatter) {
  sample::TrialBuilder builder = Frames();
  tests::AddStrideEvents(builder, "Left", {0, 21 * kFrame, 41 * kFrame, 46 * kFrame, 66 * kFrame});
  builder.AddEvent("Right", "Foot Strike", 99);
  EXPECT_EQ(CompleteOf(builder), std::vector{1});
}

TEST(StrideSelection, OfSeveralStridesOnlyTheIncompleteOnesAreLeftOut) {
  // Left strikes at -5, 30 and 70, right ones at 10 and 50, the offs five frames behind the other
  // foot's strikes: left from -5 and from 30, right from 10.
  sample::TrialBuilder builder = Frames();
  for (const float frame : {-5.0F, 30.0F, 70.0F}) {
    builder.AddEvent("Left", "Foot Strike", frame * kFrame);
    builder.AddEvent("Right", "Foot Off", (frame + 5) * kFrame + kFrame);
  }
  for (const float frame : {10.0F, 50.0F}) {
    builder.AddEvent("Right", "Foot Strike", frame * kFrame);
    builder.AddEvent("Left", "Foot Off", (frame + 5) * kFrame);
  }
  OpenedWalk walk = Opened(builder);
  ASSERT_EQ(walk.Gait().ValidStrideCount, 3);
  EXPECT_EQ(visit::CompleteStrides(walk.State()), (std::vector{2, 3}));
}

TEST(StrideSelection, NearestFrameRoundsHalvesUp) {
  OpenedWalk walk = Opened(Frames());
  const auto frame = [&walk](float frames) {
    return modVantrel::FrameNearestTo(walk.State(), frames * kFrame);
  };
  EXPECT_EQ(frame(0), 1);
  EXPECT_EQ(frame(16), 17);
  EXPECT_EQ(frame(16.25F), 17);
  EXPECT_EQ(frame(16.5F), 18);
  EXPECT_EQ(frame(17.5F), 19) << "not to the even neighbour";
  EXPECT_EQ(frame(80), 81);
}

TEST(StrideSelection, NearestFrameIsCountedFromTheFilesFirst) {
  OpenedWalk walk = Opened(Frames(101));
  EXPECT_EQ(modVantrel::FrameNearestTo(walk.State(), 100 * kFrame), 1);
  EXPECT_EQ(modVantrel::FrameNearestTo(walk.State(), 116 * kFrame), 17);
}

TEST(StrideSelection, TimeOutsideTheTrialGivesItsFirstOrLastFrame) {
  OpenedWalk walk = Opened(Frames());
  EXPECT_EQ(modVantrel::FrameNearestTo(walk.State(), -9), 1);
  EXPECT_EQ(modVantrel::FrameNearestTo(walk.State(), 9), 81);
}

// Whether a point that is not seen in `frame` alone counts as seen in the stride.
bool IsSeenWithout(std::int32_t frame) {
  sample::TrialBuilder builder = tests::TrialOfOneStride("Left");
  builder.AddPoint("P", tests::Standing(1, 2, 3)).NotSeen(1, frame);
  OpenedWalk walk = Opened(builder);
  return visit::IsSeenThrough(walk.State(), modVantrel::GetPointDataForLabel(walk.State(), "P"),
                              walk.Gait().ValidStrides[1]);
}

TEST(StrideSelection, PointMustBeSeenFromTheFirstToTheClosingStrike) {
  EXPECT_TRUE(IsSeenWithout(tests::kFirstStrikeFrame - 1));
  EXPECT_FALSE(IsSeenWithout(tests::kFirstStrikeFrame));
  EXPECT_FALSE(IsSeenWithout(tests::kOppositeStrikeFrame));
  EXPECT_FALSE(IsSeenWithout(tests::kClosingStrikeFrame));
  EXPECT_TRUE(IsSeenWithout(tests::kClosingStrikeFrame + 1));
}

}  // namespace
