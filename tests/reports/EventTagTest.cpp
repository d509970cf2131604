// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "c3d/GaitEvents.h"
#include "reports/EventTag.h"

namespace {

using namespace modVantrel;
using reports::EventTag;

constexpr auto kOtherSide = static_cast<GaitSide>(3);
constexpr auto kOtherType = static_cast<GaitEventType>(3);

TEST(EventTag, UsualTagsAreSeventeenCharacters) {
  EventTag tag;
  EXPECT_EQ(tag.For(GaitEventType::FootStrike, GaitSide::Left), "Left  Foot Strike");
  EXPECT_EQ(tag.For(GaitEventType::FootStrike, GaitSide::Right), "Right Foot Strike");
  EXPECT_EQ(tag.For(GaitEventType::FootOff, GaitSide::Left), "Left  Foot Off   ");
  EXPECT_EQ(tag.For(GaitEventType::FootOff, GaitSide::Right), "Right Foot Off   ");
  EXPECT_EQ(tag.For(GaitEventType::Other, GaitSide::None), "                 ");
  EXPECT_EQ(reports::kNoEventTag.size(), 17U);
}

TEST(EventTag, FrameWithoutATypeIsBlankWhateverItsSide) {
  EventTag tag;
  EXPECT_EQ(tag.For(GaitEventType::Other, GaitSide::Left), reports::kNoEventTag);
}

TEST(EventTag, EventWithoutASideGoesOnFromTheTagBefore) {
  EventTag tag;
  EXPECT_EQ(tag.For(GaitEventType::FootStrike, GaitSide::None), "Foot Strike")
      << "the listing starts empty";
  EXPECT_EQ(tag.For(GaitEventType::FootOff, GaitSide::None), "Foot StrikeFoot Off   ");
  EXPECT_EQ(tag.For(GaitEventType::FootOff, GaitSide::Left), "Left  Foot Off   ");
  EXPECT_EQ(tag.For(GaitEventType::FootStrike, kOtherSide), "Left  Foot Off   Foot Strike");
  EXPECT_EQ(tag.For(GaitEventType::Other, GaitSide::None), reports::kNoEventTag);
  EXPECT_EQ(tag.For(GaitEventType::FootStrike, GaitSide::None), "                 Foot Strike")
      << "the blanks of the frame before are carried too";
}

TEST(EventTag, EventOfAnotherTypeIsTheBareSide) {
  EventTag tag;
  EXPECT_EQ(tag.For(kOtherType, GaitSide::Left), "Left  ");
  EXPECT_EQ(tag.For(kOtherType, GaitSide::Right), "Right ");
  EXPECT_EQ(tag.For(kOtherType, GaitSide::None), "Right ");
}

}  // namespace
