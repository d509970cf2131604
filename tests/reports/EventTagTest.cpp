// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "c3d/GaitEvents.h"
#include "reports/EventTag.h"

namespace {

using namespace modVantrel;
using reports::EventTag;

constexpr std::int32_t kOtherType = 3;

TEST(EventTag, UsualTagsAreSeventeenCharacters) {
  EventTag tag;
  EXPECT_EQ(tag.For(kTypeFootStrike, kSideLeft), "Left  Foot Strike");
  EXPECT_EQ(tag.For(kTypeFootStrike, kSideRight), "Right Foot Strike");
  EXPECT_EQ(tag.For(kTypeFootOff, kSideLeft), "Left  Foot Off   ");
  EXPECT_EQ(tag.For(kTypeFootOff, kSideRight), "Right Foot Off   ");
  EXPECT_EQ(tag.For(kTypeOther, kSideNone), "                 ");
  EXPECT_EQ(reports::kNoEventTag.size(), 17U);
}

TEST(EventTag, FrameWithoutATypeIsBlankWhateverItsSide) {
  EventTag tag;
  EXPECT_EQ(tag.For(kTypeOther, kSideLeft), reports::kNoEventTag);
}

TEST(EventTag, EventWithoutASideGoesOnFromTheTagBefore) {
  EventTag tag;
  EXPECT_EQ(tag.For(kTypeFootStrike, kSideNone), "Foot Strike") << "the listing starts empty";
  EXPECT_EQ(tag.For(kTypeFootOff, kSideNone), "Foot StrikeFoot Off   ");
  EXPECT_EQ(tag.For(kTypeFootOff, kSideLeft), "Left  Foot Off   ");
  EXPECT_EQ(tag.For(kTypeFootStrike, 3), "Left  Foot Off   Foot Strike");
  EXPECT_EQ(tag.For(kTypeOther, kSideNone), reports::kNoEventTag);
  EXPECT_EQ(tag.For(kTypeFootStrike, kSideNone), "                 Foot Strike")
      << "the blanks of the frame before are carried too";
}

TEST(EventTag, EventOfAnotherTypeIsTheBareSide) {
  EventTag tag;
  EXPECT_EQ(tag.For(kOtherType, kSideLeft), "Left  ");
  EXPECT_EQ(tag.For(kOtherType, kSideRight), "Right ");
  EXPECT_EQ(tag.For(kOtherType, kSideNone), "Right ");
}

}  // namespace
