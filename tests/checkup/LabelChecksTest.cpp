// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/GaitTrials.h"
#include "tests/checkup/CheckedTrials.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::Check;
using tests::CleanWalk;
using tests::Places;

sample::ParamSpec PointLabels(const std::vector<std::string>& labels) {
  return sample::TextListParam("LABELS", labels);
}

// A clean walk with one point more, of that label.
sample::TrialBuilder WalkWith(const std::string& label) {
  auto walk = CleanWalk();
  return walk.AddPoint(label, tests::Standing(1, 2, 3));
}

// 260 points, named by two tables.
sample::TrialBuilder WalkOfManyPoints() {
  auto walk = CleanWalk();
  std::vector<std::string> first = {"LTOE", "RTOE", "LKNE"};
  std::vector<std::string> second;
  for (int i = 4; i <= 260; ++i) {
    walk.AddPoint(tests::Numbered("P", i), tests::Standing(1, 2, 3));
    (i <= 255 ? first : second).push_back(tests::Numbered("P", i));
  }
  walk.SetParam("POINT", sample::IntegerParam("USED", 260)).SetParam("POINT", PointLabels(first));
  return walk.SetParam("POINT", sample::TextListParam("LABELS2", second));
}

TEST(LabelsMissing, CountsThePointsWithoutALabel) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("POINT", PointLabels({"LTOE", "RTOE"})));
  ASSERT_THAT(Places(findings), ElementsAre("labels-missing at POINT:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("POINT:LABELS names 2 of the 3 points"));
}

TEST(LabelsMissing, CountsTheChannelsWithoutALabel) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.DropParam("ANALOG", "LABELS"));
  ASSERT_THAT(Places(findings), ElementsAre("labels-missing at ANALOG:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("ANALOG:LABELS names 0 of the 1 channel"));
}

TEST(LabelsMissing, WhereNoDescriptionsLetTheProgramTakeLabelsOfChannels) {
  auto walk = CleanWalk();
  EXPECT_THAT(Places(Check(walk.DropParam("ANALOG", "DESCRIPTIONS"))),
              ElementsAre("labels-missing at ANALOG:DESCRIPTIONS"));
}

TEST(LabelsMissing, CountsFurtherLabels) {
  auto walk = WalkOfManyPoints();
  EXPECT_FALSE(tests::HasCode(Check(walk), "labels-missing"));
  const auto findings = Check(walk.DropParam("POINT", "LABELS2"));
  EXPECT_THAT(tests::MessageOf(findings, "labels-missing"), HasSubstr("255 of the 260 points"));
}

TEST(LabelsFurther, AreANoteWithTheirNames) {
  const auto findings = Check(WalkOfManyPoints());
  ASSERT_THAT(Places(findings), ElementsAre("labels-further at POINT:LABELS2"));
  EXPECT_THAT(findings[0].Message,
              HasSubstr("5 labels stand behind the first 255 (P256, P257, P258, P259 and P260)"));
}

// The further labels of the walk of many points, with `label` as the first.
std::vector<modVantrel::Finding> CheckFurther(const std::string& label) {
  auto walk = WalkOfManyPoints();
  return Check(walk.SetParam(
      "POINT", sample::TextListParam("LABELS2", {label, "P257", "P258", "P259", "P260"})));
}

TEST(LabelsFurther, AreJudgedLikeTheFirst) {
  EXPECT_THAT(tests::MessageOf(CheckFurther("ltoe"), "labels-repeated"),
              HasSubstr("Points 1 and 256"));
  EXPECT_THAT(tests::MessageOf(CheckFurther(""), "labels-empty"), HasSubstr("Point 256"));
  EXPECT_THAT(tests::MessageOf(CheckFurther("R"), "label-single-letter"), HasSubstr("Point 256"));
  EXPECT_THAT(tests::MessageOf(CheckFurther("*7"), "unlabelled-points"), HasSubstr("(*7)"));
  EXPECT_THAT(tests::MessageOf(CheckFurther(std::string("R\0", 2)), "labels-padded"),
              HasSubstr("(R)"));
  EXPECT_THAT(tests::MessageOf(CheckFurther("\xC3\x96"), "labels-encoding"),
              HasSubstr("1 point label seems"));
}

TEST(LabelsRepeated, OfPointsIgnoresCaseAndBlanks) {
  const auto findings = Check(WalkWith("lkne "));
  ASSERT_THAT(Places(findings), ElementsAre("labels-repeated at LKNE"));
  EXPECT_THAT(findings[0].Message, HasSubstr("Points 3 and 4 are both called LKNE: whoever asks "
                                             "for it gets point 3"));
}

TEST(LabelsRepeated, OfChannelsIsSaidOfThem) {
  auto walk = CleanWalk();
  walk.AddAnalog("fz1", "Another", [](std::int32_t) { return 0.0F; });
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("labels-repeated at Fz1"));
  EXPECT_THAT(findings[0].Message, HasSubstr("Channels 1 and 2"));
}

TEST(LabelsRepeated, ByAPointAndAChannelAreFine) {
  EXPECT_THAT(Places(Check(WalkWith("Fz1"))), IsEmpty());
}

TEST(LabelsEmpty, NamesThePoints) {
  const auto findings = Check(WalkWith(" "));
  ASSERT_THAT(Places(findings), ElementsAre("labels-empty at POINT:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("Point 4 has an empty label"));
}

TEST(LabelsEmpty, IsOneFindingForTwoChannels) {
  auto walk = CleanWalk();
  for (int i = 0; i < 2; ++i) walk.AddAnalog("", "none", [](std::int32_t) { return 0.0F; });
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("labels-empty at ANALOG:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("Channels 2 and 3 have"));
}

TEST(LabelsPadded, AreShownWithoutTheirZeroBytes) {
  const auto findings = Check(WalkWith(std::string("RKNE\0\0", 6)));
  ASSERT_THAT(Places(findings), ElementsAre("labels-padded at POINT:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("1 point label holds zero bytes"));
  EXPECT_THAT(findings[0].Message, HasSubstr("(RKNE)"));
}

TEST(LabelsPadded, OfAChannelAreSaidOfIt) {
  auto walk = CleanWalk();
  walk.AddAnalog(std::string("Fz2\0", 4), "Force", [](std::int32_t) { return 0.0F; });
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("labels-padded at ANALOG:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("1 channel label holds"));
}

TEST(LabelsPadded, OfZeroBytesAloneAreNamedByTheirNumbers) {
  auto walk = WalkWith(std::string("\0\0", 2));
  walk.AddPoint(std::string("\0\0", 2), tests::Standing(1, 2, 3));
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings),
              ElementsAre("labels-repeated at POINT:LABELS", "labels-padded at POINT:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("Points 4 and 5 are both named by zero bytes alone"));
  EXPECT_THAT(findings[1].Message, HasSubstr("2 point labels hold zero bytes"));
  EXPECT_THAT(findings[1].Message, HasSubstr("(point 4 and point 5)"));
}

TEST(LabelsEncoding, OfUtf8IsANoteWithWhatWasMeant) {
  const auto findings = Check(WalkWith("KN\xC3\x96"));
  ASSERT_THAT(Places(findings), ElementsAre("labels-encoding at POINT:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("1 point label seems"));
  EXPECT_THAT(findings[0].Message,
              HasSubstr("ask for KN\xC3\x83\xE2\x80\x93 in place of KN\xC3\x96;"));
}

TEST(LabelsEncoding, OfBytesThatAreNoValidUtf8IsFine) {
  for (const char* label : {"KN\xE0\x80\x96", "KN\xED\xA0\x80", "KN\xF4\x90\x80\x80"}) {
    EXPECT_FALSE(tests::HasCode(Check(WalkWith(label)), "labels-encoding")) << label;
  }
}

TEST(LabelsEncoding, OfAChannelIsSaidOfIt) {
  auto walk = CleanWalk();
  walk.AddAnalog("KN\xC3\x96", "Force", [](std::int32_t) { return 0.0F; });
  EXPECT_THAT(Places(Check(walk)), ElementsAre("labels-encoding at ANALOG:LABELS"));
}

TEST(LabelsEncoding, OfWindowsLettersIsFine) {
  EXPECT_THAT(Places(Check(WalkWith("KN\xD6"))), IsEmpty());
  EXPECT_THAT(Places(Check(WalkWith("KN\xC3"))), IsEmpty()) << "half a character";
}

TEST(LabelSingleLetter, NamesTheSideWhoseCurvesItFills) {
  const auto findings = Check(WalkWith("r"));
  ASSERT_THAT(Places(findings), ElementsAre("label-single-letter at r"));
  EXPECT_THAT(findings[0].Message, HasSubstr("right side"));
  EXPECT_THAT(Places(Check(WalkWith("L"))), ElementsAre("label-single-letter at L"));
}

TEST(UnlabelledPoints, AreOneNote) {
  auto walk = WalkWith("*41");
  walk.AddPoint("*42", tests::Standing(1, 2, 3));
  constexpr std::size_t kLastPoint = 5;
  tests::Hide(walk, kLastPoint, 1, 40);
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings), ElementsAre("unlabelled-points at POINT:LABELS"));
  EXPECT_THAT(findings[0].Message, HasSubstr("2 points were never given a name (*41 and *42)"));
}

TEST(Labels, LoseThePrefixBeforeTheyAreJudged) {
  auto walk = CleanWalk();
  walk.SetParam("SUBJECTS", sample::IntegerParam("USES_PREFIXES", 1));
  walk.SetParam("SUBJECTS", sample::TextListParam("LABEL_PREFIXES", {"Ann:"}));
  walk.SetParam("POINT", PointLabels({"Ann:LTOE", "Ann:RTOE", "LTOE"}));
  EXPECT_THAT(Places(Check(walk)), ElementsAre("labels-repeated at LTOE"));
}

}  // namespace
