// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gait/CheckFindings.h"
#include "sample/SampleWalk.h"
#include "tests/checkup/CheckedTrials.h"

namespace {

using modVantrel::Severity;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::Check;
using tests::CleanWalk;
using tests::MessageOf;
using tests::Places;

TEST(Checkup, FindsNothingInACleanWalk) { EXPECT_THAT(Places(Check(CleanWalk())), IsEmpty()); }

TEST(Checkup, FindsNothingInTheSampleWalk) {
  EXPECT_THAT(Places(Check(sample::SampleWalk())), IsEmpty());
}

TEST(Checkup, FindsTheSameInEveryStorage) {
  for (const std::uint8_t processor : {modVantrel::kProcessorIntel, modVantrel::kProcessorDec}) {
    for (const auto storage : {sample::Storage::Integer, sample::Storage::Single}) {
      auto walk = CleanWalk();
      walk.Processor(processor).StoredAs(storage).Scale(0.5F);
      tests::Hide(walk, tests::kLeftKnee, 5, 7);
      EXPECT_THAT(Places(Check(walk)), ElementsAre("point-gaps at LKNE"));
    }
  }
}

TEST(CannotOpen, OfAMissingFileSaysSo) {
  const auto findings = modVantrel::CheckTrial("/no/such/folder/trial.c3d");
  ASSERT_THAT(Places(findings), ElementsAre("cannot-open at byte 1"));
  EXPECT_EQ(findings[0].Level, Severity::Error);
  EXPECT_THAT(findings[0].Message, HasSubstr("not found"));
  EXPECT_TRUE(HasError(findings));
}

TEST(CannotOpen, OfAnEmptyFileNamesTheBytesNeeded) {
  const auto findings = tests::CheckBytes("");
  ASSERT_THAT(Places(findings), ElementsAre("cannot-open at byte 1"));
  EXPECT_EQ(findings[0].Message,
            "The file has only 0 of the 512 bytes that every C3D file begins with: it is empty or "
            "was cut short.");
}

TEST(CannotOpen, OfAnotherKindOfFileIsTheOnlyFinding) {
  const auto findings = tests::CheckBytes(std::string(5000, 'x'));
  ASSERT_THAT(Places(findings), ElementsAre("cannot-open at byte 2"));
  EXPECT_EQ(findings[0].Message, "This is no C3D file: its second byte is 120 where 80 is needed.");
}

TEST(CannotOpen, OfATrialWithAWrongKeyGoesOn) {
  auto walk = CleanWalk();
  auto trial = tests::Hide(walk, tests::kLeftKnee, 5, 7).Build();
  EXPECT_THAT(Places(Check(trial.SetByte(tests::header::kFileID, 0))),
              ElementsAre("cannot-open at byte 2", "point-gaps at LKNE"));
}

TEST(CannotOpen, OfAMipsFileIsTheOnlyFinding) {
  auto trial = CleanWalk().Build();
  const auto findings = Check(trial.SetByte(tests::kProcessorPosition, tests::kProcessorMips));
  ASSERT_THAT(Places(findings), ElementsAre("cannot-open at byte 516"));
  EXPECT_THAT(findings[0].Message, HasSubstr("MIPS form (byte 516 is 86)"));
}

TEST(CannotOpen, OfAnUnknownProcessorGoesOnWithTheOneThatFits) {
  for (const std::uint8_t processor : {modVantrel::kProcessorIntel, modVantrel::kProcessorDec}) {
    auto walk = CleanWalk();
    auto trial = tests::Hide(walk.Processor(processor), tests::kLeftKnee, 5, 7).Build();
    EXPECT_THAT(Places(Check(trial.SetByte(tests::kProcessorPosition, 7))),
                ElementsAre("cannot-open at byte 516", "point-gaps at LKNE"));
  }
}

TEST(CannotOpen, OfSeveralSubjectsCountsThem) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("SUBJECTS", sample::IntegerParam("USED", 2)));
  ASSERT_THAT(Places(findings), ElementsAre("cannot-open at SUBJECTS:USED"));
  EXPECT_THAT(findings[0].Message, HasSubstr("The file holds 2 subjects"));
}

TEST(CannotOpen, OfAWrongScaleNamesBoth) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.SetParam("POINT", sample::SingleParam("SCALE", -0.25F)));
  ASSERT_THAT(Places(findings), ElementsAre("cannot-open at POINT:SCALE"));
  EXPECT_THAT(findings[0].Message, HasSubstr("is -0.1 in the header and -0.25 in POINT:SCALE"));
}

TEST(CannotOpen, OfAMissingScaleSaysSo) {
  auto walk = CleanWalk();
  const auto findings = Check(walk.DropParam("POINT", "SCALE"));
  ASSERT_THAT(Places(findings), ElementsAre("cannot-open at POINT:SCALE"));
  EXPECT_THAT(findings[0].Message, HasSubstr("missing in POINT:SCALE"));
}

TEST(CannotOpen, OfAScaleOfZeroTakesTheStorageOfTheOther) {
  auto walk = CleanWalk();
  auto trial = tests::Hide(walk, tests::kLeftKnee, 5, 7).Build();
  EXPECT_THAT(Places(Check(trial.SetSingle(tests::header::kScaleFactor, 0))),
              ElementsAre("cannot-open at POINT:SCALE", "point-gaps at LKNE"));
}

TEST(CannotOpen, OfNoPointsNamesTheirNumber) {
  auto walk = CleanWalk();
  auto trial = walk.SetParam("POINT", sample::IntegerParam("USED", 0)).Build();
  const auto findings = Check(trial.SetInteger(tests::header::kPointLabelCount, 0));
  EXPECT_THAT(MessageOf(findings, "cannot-open"),
              HasSubstr("counts 0 points, and at least 1 is needed, so the file cannot be opened"));
}

TEST(CannotOpen, OfNoFramesNamesTheFirstAndTheLast) {
  auto trial = CleanWalk().Build();
  const auto findings = Check(trial.ClaimFrames(10, 5));
  EXPECT_THAT(MessageOf(findings, "cannot-open"), HasSubstr("run from 10 to 5"));
}

TEST(CannotOpen, OfTooManyFramesNamesTheFirstAndTheLast) {
  auto trial = CleanWalk().Build();
  const auto findings = Check(trial.ClaimFrames(-32000, 32000));
  EXPECT_THAT(MessageOf(findings, "cannot-open"), HasSubstr("run from -32000 to 32000"));
}

TEST(CannotOpen, OfARateBelowOneNamesBothAndGoesOnWithTheHeaders) {
  auto walk = CleanWalk();
  walk.SetParam("TRIAL", sample::SingleParam("CAMERA_RATE", 0));
  tests::Hide(walk, tests::kLeftKnee, 5, 7);
  const auto findings = Check(walk);
  ASSERT_THAT(Places(findings),
              ElementsAre("cannot-open at TRIAL:CAMERA_RATE", "point-gaps at LKNE"));
  EXPECT_THAT(findings[0].Message,
              HasSubstr("is 0 Hz in TRIAL:CAMERA_RATE, which counts, and 100 Hz in the header"));
}

TEST(CannotOpen, OfAHeaderWithoutARateNamesItsByte) {
  auto trial = CleanWalk().Build();
  const auto findings = Check(trial.SetSingle(tests::header::kPointFrameRate, 0.5F));
  EXPECT_THAT(MessageOf(findings, "cannot-open"), HasSubstr("is 0.5 Hz in the header"));
}

TEST(CannotOpen, OfParametersBehindTheEndOfTheFileNamesTheirBlock) {
  auto trial = CleanWalk().Build();
  const auto findings = Check(trial.SetByte(tests::header::kParamBlockPointer, 200));
  ASSERT_THAT(Places(findings), ElementsAre("cannot-open at byte 101889"));
  EXPECT_THAT(findings[0].Message, HasSubstr("block 200"));
}

TEST(ParametersDamaged, WhereTheLastRecordReachesBeyondTheFileIsTheOnlyFindingOfTheOpen) {
  auto walk = CleanWalk();
  walk.Order(sample::RecordOrder::GroupThenItsParams);
  auto trial = walk.Build();
  // The chain leads far out of the file behind the record that all look-ups end at.
  trial.SetOffset(trial.ParamPosition("TRIAL", "DATE"), 32000);
  const auto findings = Check(trial);
  EXPECT_THAT(MessageOf(findings, "parameters-damaged"),
              HasSubstr("reaches beyond the end of the file (" + std::to_string(trial.Size()) +
                        " bytes), so it and all behind it are lost"));
}

TEST(ParametersDamaged, WhereAParameterHasTooManyDimensionsNamesItsByteAndTheError) {
  auto walk = CleanWalk();
  walk.SetParam(
      "TRIAL",
      {"ODD", std::vector<std::uint8_t>(8, 1), std::vector<std::int16_t>{1}, "", false, {}});
  const auto trial = walk.Build();
  const std::string byte = std::to_string(trial.ParamPosition("TRIAL", "ODD"));
  EXPECT_EQ(MessageOf(Check(trial), "parameters-damaged"),
            "The parameter at byte " + byte +
                " cannot be read (Subscript out of range), so it and all behind it are lost.");
}

TEST(ParametersDamaged, WhereARecordLiesBehindSectionAndFirstFrame) {
  auto walk = CleanWalk();
  auto trial = walk.Build();
  const auto& bytes = trial.Bytes();
  const std::int32_t last = trial.ParamPosition("TRIAL", "DATE");
  const auto nameLength = std::to_integer<std::int32_t>(bytes[static_cast<std::size_t>(last - 1)]);
  // An offset counts from its own word, which stands behind the name.
  const std::int32_t word = last + 2 + nameLength;
  const std::int32_t target = trial.FrameDataPosition() + 600;
  trial.SetOffset(last, static_cast<std::int16_t>(target - word));
  trial.SetByte(target + 1, 1);
  const auto findings = Check(trial);
  ASSERT_TRUE(tests::HasCode(findings, "parameters-damaged"));
  EXPECT_EQ(MessageOf(findings, "parameters-damaged"),
            "The parameters go on at byte " + std::to_string(target) +
                ", behind their own blocks and the first frame (byte " +
                std::to_string(trial.FrameDataPosition()) +
                "): what would be read there is no parameter.");
}

TEST(DataCutShort, CountsTheWholeFramesAndGoesOn) {
  auto walk = CleanWalk();
  auto trial = tests::Hide(walk, tests::kLeftKnee, 5, 7).Build();
  constexpr std::size_t kFrameSize = (3 * 4 + 2) * 4;
  const auto start = static_cast<std::size_t>(trial.FrameDataPosition() - 1);
  const auto findings = Check(trial.TruncateTo(start + 290 * kFrameSize + 55));
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].Code, "data-cut-short");
  EXPECT_THAT(findings[0].Message, HasSubstr("holds 290 whole frames of the 300"));
  EXPECT_THAT(findings[1].Message, HasSubstr("LKNE is not seen in 3 of 290 frames"));
}

TEST(DataCutShort, IsNotFoundWhereTheLastFrameIsWhole) {
  auto trial = CleanWalk().Build();
  constexpr std::size_t kFrameSize = (3 * 4 + 2) * 4;
  const auto start = static_cast<std::size_t>(trial.FrameDataPosition() - 1);
  EXPECT_THAT(Places(Check(trial.TruncateTo(start + 300 * kFrameSize))), IsEmpty());
  EXPECT_THAT(
      Places(Check(trial.TruncateTo(start + 300 * kFrameSize - 1))),
      ElementsAre("data-cut-short at byte " + std::to_string(start + 300 * kFrameSize - 1)));
}

TEST(DataCutShort, SaysWhereTheHeaderNamesNoBlock) {
  auto trial = CleanWalk().Build();
  const auto findings =
      Check(trial.SetInteger(tests::header::kFirstMarkerAndAnalogBlockPointer, 0));
  EXPECT_THAT(Places(findings), ElementsAre("data-cut-short at byte 17"));
}

TEST(Checkup, KeepsItsCodesTheirOrderAndTheirSeverities) {
  std::string kinds;
  for (const modVantrel::CheckKind& kind : modVantrel::kCheckKinds) {
    kinds += std::string(kind.Code) + " " + std::string(SeverityName(kind.Level)) + "\n";
  }
  EXPECT_EQ(kinds,
            "cannot-open error\nparameters-damaged error\ndata-cut-short error\n"
            "frame-count warning\nfirst-frame note\nrate-overridden note\npoint-count warning\n"
            "analog-layout warning\nlabels-missing warning\nlabels-further note\n"
            "labels-repeated warning\nlabels-empty warning\nlabels-padded warning\n"
            "labels-encoding note\nlabel-single-letter warning\nunlabelled-points note\n"
            "point-gaps warning\npoint-never-seen note\nunits warning\nmoment-units warning\n"
            "events-none warning\nevent-outside warning\nevent-minutes warning\n"
            "event-unsided note\nevent-order warning\nevent-close warning\n"
            "strides-none warning\ntoe-markers warning\nwalk-along-y warning\n"
            "walk-turns warning\nwalk-in-place warning\nanalysis-differs warning\n"
            "force-plates warning\nsubject-missing note\nsubject-date warning\n");
}

TEST(Checkup, FindsSeveralFaultsOfOneFile) {
  auto walk = CleanWalk();
  walk.SetParam("SUBJECTS", sample::IntegerParam("USED", 3));
  walk.SetParam("POINT", sample::TextParam("UNITS", "inch"));
  walk.SetParam("POINT", sample::IntegerParam("USED", 4));
  walk.SetParam("SUBJECTS", sample::TextParam("DOB", "02/03/2014"));
  tests::Hide(walk, tests::kLeftKnee, 1, 300);
  EXPECT_THAT(Places(Check(walk)),
              ElementsAre("cannot-open at SUBJECTS:USED", "point-count at POINT:USED",
                          "point-never-seen at LKNE", "units at POINT:UNITS",
                          "subject-date at SUBJECTS:DOB"));
}

}  // namespace
