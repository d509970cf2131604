// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/StoppableWork.h"
#include "tests/GaitTrials.h"
#include "tests/checkup/CheckedTrials.h"

// The clean walk's strides are Left 1 from 0.2 s (frame 21) to 1.8 s (frame 181) and Right 1 from
// 1.0 s (frame 101) to 2.6 s (frame 261).
namespace {

using modAllPurpose::StoppableWork;
using modAllPurpose::WorkStopped;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::Check;
using tests::CleanWalk;
using tests::Hide;
using tests::MessageOf;
using tests::Moving;
using tests::Places;

sample::TrialBuilder WithKneeHidden(std::int32_t first, std::int32_t last) {
  auto walk = CleanWalk();
  return Hide(walk, tests::kLeftKnee, first, last);
}

TEST(PointGaps, GiveShareLongestGapAndTheStrideAroundIt) {
  auto walk = WithKneeHidden(51, 64);
  const auto findings = Check(Hide(walk, tests::kLeftKnee, 3, 5));
  ASSERT_THAT(Places(findings), ElementsAre("point-gaps at LKNE"));
  EXPECT_EQ(findings[0].Message,
            "LKNE is not seen in 17 of 300 frames (5.7 %), the longest gap is 14 frames, inside "
            "Left stride 1 (this stride is left out of the means of this marker).");
}

TEST(PointGaps, NameStridesThatOtherGapsTouch) {
  auto walk = WithKneeHidden(30, 44);
  const auto findings = Check(Hide(walk, tests::kLeftKnee, 261, 262));
  EXPECT_THAT(MessageOf(findings, "point-gaps"),
              HasSubstr("inside Left stride 1; others touch Right stride 1 (these strides are"
                        " left out of the means of this marker"));
}

TEST(PointGaps, TouchAStrideFromItsFirstFrameToItsLast) {
  EXPECT_THAT(MessageOf(Check(WithKneeHidden(1, 20)), "point-gaps"), HasSubstr("outside all"));
  EXPECT_THAT(MessageOf(Check(WithKneeHidden(1, 21)), "point-gaps"), HasSubstr("Left stride 1"));
  EXPECT_THAT(MessageOf(Check(WithKneeHidden(261, 261)), "point-gaps"), HasSubstr("Right stride"));
  EXPECT_THAT(MessageOf(Check(WithKneeHidden(262, 262)), "point-gaps"), HasSubstr("outside all"));
}

TEST(PointGaps, OfTwoPointsAreTwoFindings) {
  auto walk = WithKneeHidden(3, 5);
  walk.AddPoint("RKNE", tests::Standing(1, 2, 3));
  EXPECT_THAT(Places(Check(Hide(walk, 4, 3, 5))),
              ElementsAre("point-gaps at LKNE", "point-gaps at RKNE"));
}

TEST(PointGaps, OfManyPointsAtOnceAreOneFinding) {
  auto walk = WithKneeHidden(3, 5);
  for (std::size_t point = 4; point <= 7; ++point) {
    walk.AddPoint(tests::Numbered("M", static_cast<int>(point)), tests::Standing(1, 2, 3));
    Hide(walk, point, 3, 5);
  }
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("point-gaps at LKNE"));
  EXPECT_THAT(findings[0].Message, HasSubstr("LKNE, M4, M5, M6 and M7 are not seen in the same 3"));
}

TEST(PointGaps, OfAPositionThatIsNoNumberCountAsUnseen) {
  auto walk = CleanWalk();
  walk.AddPoint("SACR", [](std::int32_t frame) {
    return std::array{1.0F, frame == 8 ? std::nanf("") : 2.0F, 3.0F};
  });
  EXPECT_THAT(MessageOf(Check(walk), "point-gaps"), HasSubstr("SACR is not seen in 1 of 300"));
}

TEST(PointGaps, OfModelOutputsAreNone) {
  for (const char* kind : {"ANGLES", "FORCES", "MOMENTS", "POWERS", "SCALARS"}) {
    auto model = WithKneeHidden(3, 5);
    EXPECT_THAT(Places(Check(model.SetParam("POINT", sample::TextListParam(kind, {"LKNE"})))),
                IsEmpty())
        << kind;
  }
}

TEST(PointGaps, OfAPointWithoutALabelNameItsNumber) {
  for (const std::string& label : {std::string(" "), std::string("\0\0", 2)}) {
    auto walk = CleanWalk();
    walk.AddPoint(label, tests::Standing(1, 2, 3));
    constexpr std::size_t kLastPoint = 4;
    EXPECT_THAT(MessageOf(Check(Hide(walk, kLastPoint, 3, 5)), "point-gaps"),
                HasSubstr("point 4 is not seen in 3 of 300"));
  }
}

TEST(PointGaps, OfAFurtherLabelNameIt) {
  auto walk = CleanWalk();
  std::vector<std::string> first = {"LTOE", "RTOE", "LKNE"};
  constexpr std::size_t kLastOfFirstTable = 255;
  while (first.size() < kLastOfFirstTable) {
    first.push_back(tests::Numbered("P", static_cast<int>(first.size())));
    walk.AddPoint(first.back(), tests::Standing(1, 2, 3));
  }
  walk.AddPoint("RKNE", tests::Standing(1, 2, 3));
  walk.SetParam("POINT", sample::TextListParam("LABELS", first));
  walk.SetParam("POINT", sample::TextListParam("LABELS2", {"RKNE"}));
  EXPECT_THAT(Places(Check(Hide(walk, kLastOfFirstTable + 1, 3, 5))),
              ElementsAre("labels-further at POINT:LABELS2", "point-gaps at RKNE"));
}

TEST(PointGaps, StandInTheOrderOfTheNumbersInTheirLabels) {
  auto walk = CleanWalk();
  std::size_t point = 3;
  for (const char* label : {"M10", "M9", "M100"}) {
    walk.AddPoint(label, tests::Standing(1, 2, 3));
    ++point;
    Hide(walk, point, 3, static_cast<std::int32_t>(point));
  }
  EXPECT_THAT(Places(Check(walk)),
              ElementsAre("point-gaps at M9", "point-gaps at M10", "point-gaps at M100"));
}

TEST(PointNeverSeen, IsANoteAndNoGap) {
  const auto findings = Check(WithKneeHidden(1, 300));
  ASSERT_THAT(Places(findings), ElementsAre("point-never-seen at LKNE"));
  EXPECT_EQ(findings[0].Level, modVantrel::Severity::Note);
}

TEST(PointNeverSeen, NeedsEveryFrame) {
  EXPECT_THAT(Places(Check(WithKneeHidden(1, 299))), ElementsAre("point-gaps at LKNE"));
}

// The clean walk with its three points named anew.
sample::TrialBuilder WithLabels(const std::vector<std::string>& labels) {
  auto walk = CleanWalk();
  return walk.SetParam("POINT", sample::TextListParam("LABELS", labels));
}

TEST(ToeMarkers, ThatAreMissingAreOneFinding) {
  const auto one = Check(WithLabels({"LTOE", "X", "LKNE"}));
  ASSERT_THAT(Places(one), ElementsAre("toe-markers at RTOE"));
  EXPECT_THAT(one[0].Message, HasSubstr("The trial has no point RTOE"));
  const auto both = Check(WithLabels({"Y", "X", "LKNE"}));
  ASSERT_THAT(Places(both), ElementsAre("toe-markers at LTOE"));
  EXPECT_THAT(both[0].Message, HasSubstr("LTOE and RTOE"));
}

TEST(ToeMarkers, AreNotAskedForWithoutStrides) {
  auto walk = tests::CleanWalkWithoutEvents();
  walk.SetParam("POINT", sample::TextListParam("LABELS", {"Y", "X", "LKNE"}));
  EXPECT_FALSE(tests::HasCode(Check(walk), "toe-markers"));
}

TEST(ToeMarkers, OfAnUnseenStrikeNameItAndItsStrides) {
  auto walk = CleanWalk();
  const auto findings = Check(Hide(walk, tests::kLeftToe, 181, 181));
  ASSERT_THAT(Places(findings), ElementsAre("point-gaps at LTOE", "toe-markers at LTOE"));
  EXPECT_EQ(findings[1].Message,
            "LTOE is not seen at Left Foot Strike at 1.800 s: lengths, speed and axis of Left "
            "stride 1 and Right stride 1 are missing or wrong.");
}

TEST(ToeMarkers, UnseenAnywhereElseAreAGapAlone) {
  auto walk = CleanWalk();
  EXPECT_THAT(Places(Check(Hide(walk, tests::kLeftToe, 182, 190))),
              ElementsAre("point-gaps at LTOE"));
}

TEST(ToeMarkers, ThatAreNoNumberAnywhereSpoilTheirWholeCurve) {
  auto spoilt = CleanWalk();
  spoilt.AddPoint("NEW", [](std::int32_t frame) {
    return std::array{frame == 8 ? std::nanf("") : 16.0F * static_cast<float>(frame), 0.0F, 0.0F};
  });
  spoilt.SetParam("POINT", sample::TextListParam("LABELS", {"OLD", "RTOE", "LKNE", "LTOE"}));
  EXPECT_THAT(Places(Check(spoilt)), ElementsAre("point-gaps at LTOE", "toe-markers at LTOE"));
}

// A walk whose toes go by these steps a frame.
sample::TrialBuilder WalkBy(const std::array<float, 3>& left, const std::array<float, 3>& right) {
  auto walk = CleanWalk();
  walk.AddPoint("A", Moving({0, 100, 40}, left)).AddPoint("B", Moving({0, -100, 40}, right));
  return walk.SetParam("POINT",
                       sample::TextListParam("LABELS", {"OLD1", "OLD2", "LKNE", "LTOE", "RTOE"}));
}

TEST(WalkAlongY, NamesTheStrides) {
  const auto findings = Check(WalkBy({0, -16, 0}, {0, -16, 0}));
  ASSERT_THAT(Places(findings), ElementsAre("walk-along-y at Left stride 1"));
  EXPECT_THAT(findings[0].Message, HasSubstr("along Y in Left stride 1 and Right stride 1"));
}

TEST(WalkAlongY, IsNotFoundOnADiagonalThatCountsAsX) {
  EXPECT_THAT(Places(Check(WalkBy({16, 16, 0}, {16, 16, 0}))), IsEmpty());
}

TEST(WalkTurns, BesideTheStridesAlongY) {
  const auto findings = Check(WalkBy({16, 0, 0}, {1, 16, 0}));
  ASSERT_THAT(Places(findings),
              ElementsAre("walk-along-y at Right stride 1", "walk-turns at Right stride 1"));
  EXPECT_THAT(findings[1].Message, HasSubstr("X in Left stride 1, but Y in Right stride 1"));
}

TEST(WalkInPlace, OfStridesBelowHundredMillimetres) {
  // 160 frames between the strikes of a foot.
  const auto findings = Check(WalkBy({99.5F / 160, 0, 0}, {16, 0, 0}));
  ASSERT_THAT(Places(findings), ElementsAre("walk-in-place at Left stride 1"));
  EXPECT_THAT(findings[0].Message, HasSubstr("Left stride 1 is shorter than 100 mm (99.5 mm), as"));
}

TEST(WalkInPlace, OfTwoStridesNamesTheLeast) {
  const auto findings = Check(WalkBy({0.5F, 0, 0}, {0.25F, 0, 0}));
  ASSERT_THAT(Places(findings), ElementsAre("walk-in-place at Left stride 1"));
  EXPECT_THAT(
      findings[0].Message,
      HasSubstr("Left stride 1 and Right stride 1 are shorter than 100 mm (the least 40.0"));
}

TEST(WalkInPlace, IsNotFoundAtHundredMillimetresExactly) {
  EXPECT_THAT(Places(Check(WalkBy({100.0F / 160, 0, 0}, {16, 0, 0}))), IsEmpty());
}

TEST(WalkInPlace, GoesByTheUnitOfPositions) {
  for (const auto& [unit, step] : {std::pair{"m", 0.016F}, std::pair{"CM", 1.6F}}) {
    auto walk = WalkBy({step, 0, 0}, {step, 0, 0});
    EXPECT_THAT(Places(Check(walk.SetParam("POINT", sample::TextParam("UNITS", unit)))), IsEmpty());
  }
}

TEST(WalkInPlace, IsNotSaidWhereTheScaleIsNotKnown) {
  auto walk = WalkBy({0.1F, 0, 0}, {0.1F, 0, 0});
  EXPECT_THAT(Places(Check(walk.DropParam("POINT", "SCALE"))),
              ElementsAre("cannot-open at POINT:SCALE"));
}

TEST(Checkup, EndsAtTheNextReadingOnceItIsToStop) {
  tests::TemporaryFolder folder;
  const std::string file = (folder / "trial.c3d").string();
  CleanWalk().Build().WriteTo(file);
  int askedInAll = 0;
  {
    const StoppableWork work([&askedInAll] { return ++askedInAll < 0; });
    (void)modVantrel::CheckTrial(file);
  }
  ASSERT_GE(askedInAll, 3) << "when it opens, and for parameters and frames";
  // Wherever it is by then: what goes on behind errors does not go on behind this.
  for (int last = 1; last <= askedInAll; ++last) {
    int asked = 0;
    const StoppableWork work([&] { return ++asked == last; });
    EXPECT_THROW((void)modVantrel::CheckTrial(file), WorkStopped);
    EXPECT_EQ(asked, last);
  }
}

}  // namespace
