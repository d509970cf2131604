// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/checkup/CheckedTrials.h"

namespace {

using sample::IntegerParam;
using sample::SingleParam;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::Check;
using tests::CleanWalk;
using tests::Places;

sample::ParamSpec Words(const std::string& name, std::int16_t low, std::int16_t high) {
  return sample::IntegerListParam(name, {low, high});
}

TEST(FrameCount, OfTheParameterFramesMayDiffer) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("POINT", IntegerParam("FRAMES", 310)));
  ASSERT_THAT(Places(findings), ElementsAre("frame-count at POINT:FRAMES"));
  EXPECT_THAT(findings[0].Message, HasSubstr("counts 300 frames, but POINT:FRAMES gives 310"));
}

TEST(FrameCount, OfActualFieldsTakesBothWords) {
  auto walk = CleanWalk();
  walk.SetParam("TRIAL", Words("ACTUAL_START_FIELD", 1, 0));
  walk.SetParam("TRIAL", Words("ACTUAL_END_FIELD", 300, 0));
  EXPECT_THAT(Places(Check(walk)), IsEmpty());
  const auto findings = Check(walk.SetParam("TRIAL", Words("ACTUAL_END_FIELD", -25536, 1)));
  ASSERT_THAT(Places(findings), ElementsAre("frame-count at TRIAL:ACTUAL_END_FIELD"));
  EXPECT_THAT(findings[0].Message, HasSubstr("105536"));
}

TEST(FrameCount, OfLongFramesIsOneFindingWithTheOthers) {
  auto walk = CleanWalk();
  walk.SetParam("POINT", SingleParam("LONG_FRAMES", 40000));
  walk.SetParam("POINT", IntegerParam("FRAMES", -1));
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("frame-count at POINT:LONG_FRAMES"));
  EXPECT_THAT(findings[0].Message,
              HasSubstr("POINT:LONG_FRAMES gives 40000 and POINT:FRAMES gives 65535"));
}

TEST(FirstFrame, OtherThanOneIsANote) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.Frames(11, 310));
  ASSERT_THAT(Places(findings), ElementsAre("first-frame at byte 7"));
  EXPECT_EQ(findings[0].Level, modVantrel::Severity::Note);
  EXPECT_THAT(findings[0].Message, HasSubstr("begins with frame 11 at 0.100 s"));
}

TEST(RateOverridden, ByTheCamerasIsANoteWithTheRateThatCounts) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("TRIAL", SingleParam("CAMERA_RATE", 100.5F)));
  ASSERT_THAT(Places(findings), ElementsAre("rate-overridden at TRIAL:CAMERA_RATE"));
  EXPECT_EQ(findings[0].Message,
            "The header gives 100 frames per second, but TRIAL:CAMERA_RATE gives 100.5 Hz: all "
            "times and speeds go by 100.5 Hz.");
}

TEST(RateOverridden, ByThatOfThePointsSaysThatTheHeadersCounts) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("POINT", SingleParam("RATE", 50)));
  ASSERT_THAT(Places(findings), ElementsAre("rate-overridden at POINT:RATE"));
  EXPECT_THAT(findings[0].Message, HasSubstr("go by 100 Hz"));
}

TEST(RateOverridden, IsNotFoundWhereAllAreEqual) {
  auto walk = CleanWalk();
  EXPECT_THAT(Places(Check(walk.SetParam("TRIAL", SingleParam("CAMERA_RATE", 100)))), IsEmpty());
}

TEST(PointCount, OfTheParameterMayDiffer) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("POINT", IntegerParam("USED", 5)));
  ASSERT_THAT(Places(findings), ElementsAre("point-count at POINT:USED"));
  EXPECT_THAT(findings[0].Message, HasSubstr("counts 3 points, but POINT:USED is 5"));
}

TEST(AnalogLayout, OfAnotherNumberOfChannels) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("ANALOG", IntegerParam("USED", 2)));
  ASSERT_THAT(Places(findings), ElementsAre("analog-layout at ANALOG:USED"));
  EXPECT_THAT(findings[0].Message, HasSubstr("ANALOG:USED is 2, but the header's 2 analog values a "
                                             "frame at 2 samples a channel make 1 channel"));
}

TEST(AnalogLayout, OfAnotherRate) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("ANALOG", SingleParam("RATE", 1000)));
  ASSERT_THAT(Places(findings), ElementsAre("analog-layout at ANALOG:RATE"));
  EXPECT_THAT(findings[0].Message, HasSubstr("make 200 Hz"));
}

TEST(AnalogLayout, OfARateThatIsRoundedFits) {
  auto walk = CleanWalk();
  walk.Rate(59.94F).SetParam("ANALOG", SingleParam("RATE", 119.8801F));
  EXPECT_FALSE(tests::HasCode(Check(walk), "analog-layout"));
}

TEST(AnalogLayout, OfABrokenNumberOfChannelsIsOneFinding) {
  auto walk = CleanWalk();
  auto trial = walk.SetParam("ANALOG", SingleParam("RATE", 300)).Build();
  const auto findings = Check(trial.SetInteger(tests::header::kAnalogSamplesPerChannel, 3));
  ASSERT_TRUE(tests::HasCode(findings, "analog-layout"));
  EXPECT_THAT(tests::MessageOf(findings, "analog-layout"), HasSubstr("no whole number"));
}

TEST(AnalogLayout, OfAFileWithoutChannelsIsFine) {
  sample::TrialBuilder builder;
  EXPECT_FALSE(tests::HasCode(Check(builder), "analog-layout"));
}

}  // namespace
