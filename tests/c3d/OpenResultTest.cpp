// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/OpenC3dFile.h"
#include "tests/TestTrials.h"

namespace {

using namespace modVantrel;
using sample::Trial;
using sample::TrialBuilder;
using tests::ErrorNumberOf;

using Bytes = std::vector<std::uint8_t>;
using Integers = std::vector<std::int16_t>;

using tests::kBadRecordNumber;
using tests::kInputPastEndOfFile;
using tests::kOverflow;

class OpenResultTest : public testing::Test {
 protected:
  OpenResult Open(const Trial& trial) { return opener_.Open(trial); }
  OpenResult Open(const TrialBuilder& builder) { return opener_.Open(builder); }

  void ExpectFailure(const Trial& trial, OpenResult expected) {
    EXPECT_EQ(Open(trial), expected);
    EXPECT_FALSE(State().C3dFileNumber.IsOpen());
  }
  void ExpectFailure(const TrialBuilder& builder, OpenResult expected) {
    ExpectFailure(builder.Build(), expected);
  }

  void ExpectRunTimeError(const Trial& trial, int number) {
    EXPECT_EQ(ErrorNumberOf([&] { Open(trial); }), number);
    EXPECT_FALSE(State().C3dFileNumber.IsOpen());
  }

  FileState& State() { return opener_.State(); }

  tests::TrialOpener opener_;
};

TrialBuilder WithSubjects(std::int16_t used) {
  return TrialBuilder().SetParam("SUBJECTS", sample::IntegerParam("USED", used));
}

TrialBuilder WithCameraRate(float rate) {
  return TrialBuilder().SetParam("TRIAL", sample::SingleParam("CAMERA_RATE", rate));
}

TEST_F(OpenResultTest, AGoodTrialOpensAndStaysOpen) {
  EXPECT_EQ(Open(TrialBuilder()), OpenResult::Success);
  EXPECT_TRUE(State().C3dFileNumber.IsOpen());
}

TEST_F(OpenResultTest, AFileThatCannotBeOpenedGives1) {
  const tests::TemporaryFolder folder;
  for (const std::string& path : {(folder / "missing.c3d").string(), folder.Path().string(),
                                  (folder / "no folder" / "x.c3d").string(), std::string()}) {
    EXPECT_EQ(OpenC3dFile(State(), path, tests::NoEvents), OpenResult::FileNotOpened) << path;
    EXPECT_FALSE(State().C3dFileNumber.IsOpen());
    EXPECT_EQ(State().OpenC3dFileSpec, path);
  }
}

TEST_F(OpenResultTest, ASecondByteOtherThan80Gives2BeforeAnythingElseIsRead) {
  for (const std::uint8_t key : Bytes{0, 79, 81, 255}) {
    ExpectFailure(TrialBuilder().Build().SetByte(tests::header::kFileID, key),
                  OpenResult::FileKeyNotFound);
  }
  // The section header would be at a position below 1, and there is nothing behind the header.
  ExpectFailure(TrialBuilder()
                    .Build()
                    .SetByte(tests::header::kFileID, 0)
                    .SetByte(tests::header::kParamBlockPointer, 0)
                    .TruncateTo(512),
                OpenResult::FileKeyNotFound);
}

TEST_F(OpenResultTest, AProcessorOtherThanIntelAndDecGives3) {
  for (const std::uint8_t processor : Bytes{0, 1, 83, 86, 255}) {
    ExpectFailure(TrialBuilder().Build().SetByte(tests::kProcessorPosition, processor),
                  OpenResult::ProcessorNotSupported);
  }
}

TEST_F(OpenResultTest, MoreThanOneSubjectGives4) {
  ExpectFailure(WithSubjects(2), OpenResult::MoreThanOneSubject);
  ExpectFailure(WithSubjects(32767), OpenResult::MoreThanOneSubject);
}

TEST_F(OpenResultTest, OneSubjectOrFewerOrNoneStatedOpens) {
  for (const std::int16_t used : Integers{1, 0, -1}) {
    EXPECT_EQ(Open(WithSubjects(used)), OpenResult::Success) << used;
  }
  EXPECT_EQ(Open(TrialBuilder()), OpenResult::Success);
  const auto asByte = TrialBuilder().SetParam("SUBJECTS", sample::ByteParam("USED", 2));
  EXPECT_EQ(Open(asByte), OpenResult::Success) << "a USED of another type is not read";
}

TEST_F(OpenResultTest, AScaleThatIsMissingUnreadableZeroOrDifferentGives5) {
  ExpectFailure(TrialBuilder().DropParam("POINT", "SCALE"), OpenResult::ScaleFactorCorrupt);
  ExpectFailure(TrialBuilder().DropGroup("POINT"), OpenResult::ScaleFactorCorrupt);
  ExpectFailure(TrialBuilder().SetParam("POINT", sample::IntegerParam("SCALE", 1)),
                OpenResult::ScaleFactorCorrupt);
  ExpectFailure(
      TrialBuilder().SetParam("POINT", {"SCALE", {0}, std::vector<float>{}, "", false, {}}),
      OpenResult::ScaleFactorCorrupt);
  ExpectFailure(TrialBuilder().Scale(0), OpenResult::ScaleFactorCorrupt);
  ExpectFailure(TrialBuilder().Scale(0.1F).SetParam("POINT", sample::SingleParam("SCALE", 0.2F)),
                OpenResult::ScaleFactorCorrupt);
}

TEST_F(OpenResultTest, AScaleOfTheOtherSignGives5) {
  ExpectFailure(TrialBuilder().Scale(0.1F).SetParam("POINT", sample::SingleParam("SCALE", -0.1F)),
                OpenResult::ScaleFactorCorrupt);
}

TEST_F(OpenResultTest, AScaleThatIsNotANumberGives5) {
  ExpectFailure(TrialBuilder().Scale(std::numeric_limits<float>::quiet_NaN()),
                OpenResult::ScaleFactorCorrupt);
}

TEST_F(OpenResultTest, NoPointLabelsGives6) {
  for (const std::int16_t count : Integers{0, -1, -32768}) {
    ExpectFailure(TrialBuilder().Build().SetInteger(tests::header::kPointLabelCount, count),
                  OpenResult::NoPointLabels);
  }
}

TEST_F(OpenResultTest, NoFramesGives7BeforeAnyParameterIsRead) {
  ExpectFailure(TrialBuilder().Build().ClaimFrames(5, 4), OpenResult::NoFrames);
  ExpectFailure(TrialBuilder().Build().ClaimFrames(5, -5), OpenResult::NoFrames);
  ExpectFailure(TrialBuilder().Build().ClaimFrames(5, 4).TruncateTo(516), OpenResult::NoFrames);
}

TEST_F(OpenResultTest, AFrameRateBelow1Gives8) {
  for (const float rate : {0.0F, 0.99F, -100.0F}) {
    ExpectFailure(TrialBuilder().Rate(rate), OpenResult::FrameRateNotSet);
  }
  EXPECT_EQ(Open(TrialBuilder().Rate(1)), OpenResult::Success);
}

TEST_F(OpenResultTest, AFrameRateThatIsNotANumberGives8) {
  ExpectFailure(TrialBuilder().Rate(std::numeric_limits<float>::quiet_NaN()),
                OpenResult::FrameRateNotSet);
}

TEST_F(OpenResultTest, ACameraRateOf0OverridesTheHeaderAndGives8) {
  ExpectFailure(WithCameraRate(0).Rate(100), OpenResult::FrameRateNotSet);
  EXPECT_EQ(State().Header.PointFrameRate, 0.0F);
}

// One fault each, in the order in which an open meets them.
struct Fault {
  OpenResult Result;
  std::function<void(TrialBuilder&)> Build;
  std::function<void(Trial&)> Damage;
};

const std::vector<Fault>& FaultsInOrder() {
  const auto nothing = [](auto& /*trial*/) {};
  static const std::vector<Fault> faults = {
      {OpenResult::FileKeyNotFound, nothing,
       [](Trial& trial) { trial.SetByte(tests::header::kFileID, 0); }},
      {OpenResult::ProcessorNotSupported, nothing,
       [](Trial& trial) { trial.SetByte(tests::kProcessorPosition, tests::kProcessorMips); }},
      {OpenResult::NoFrames, nothing, [](Trial& trial) { trial.ClaimFrames(5, 4); }},
      {OpenResult::FrameRateNotSet,
       [](TrialBuilder& builder) {
         builder.SetParam("TRIAL", sample::SingleParam("CAMERA_RATE", 0));
       },
       nothing},
      {OpenResult::MoreThanOneSubject,
       [](TrialBuilder& builder) { builder.SetParam("SUBJECTS", sample::IntegerParam("USED", 2)); },
       nothing},
      {OpenResult::ScaleFactorCorrupt,
       [](TrialBuilder& builder) { builder.DropParam("POINT", "SCALE"); }, nothing},
      {OpenResult::NoPointLabels, nothing,
       [](Trial& trial) { trial.SetInteger(tests::header::kPointLabelCount, 0); }},
  };
  return faults;
}

TEST_F(OpenResultTest, OfTwoFaultsTheFirstInTheOrderOfTheChecksIsReported) {
  const std::vector<Fault>& faults = FaultsInOrder();
  for (std::size_t first = 0; first < faults.size(); ++first) {
    for (std::size_t second = first; second < faults.size(); ++second) {
      TrialBuilder builder;
      faults[first].Build(builder);
      faults[second].Build(builder);
      Trial trial = builder.Build();
      faults[first].Damage(trial);
      faults[second].Damage(trial);
      EXPECT_EQ(Open(trial), faults[first].Result)
          << "together with " << static_cast<int>(faults[second].Result);
    }
  }
}

TEST_F(OpenResultTest, AFrameCountBeyond16BitsIsError6) {
  ExpectRunTimeError(TrialBuilder().Build().ClaimFrames(-32768, 32767), kOverflow);
  ExpectRunTimeError(TrialBuilder().Build().ClaimFrames(0, 32767), kOverflow);
  ExpectRunTimeError(TrialBuilder().Build().ClaimFrames(1, -32768), kOverflow);
  EXPECT_EQ(Open(TrialBuilder().Build().ClaimFrames(1, 32767)), OpenResult::Success);
  EXPECT_EQ(State().PointFrameCount, 32767);
}

TEST_F(OpenResultTest, AParamBlockPointerOf0IsError63) {
  ExpectRunTimeError(TrialBuilder().Build().SetByte(tests::header::kParamBlockPointer, 0),
                     kBadRecordNumber);
}

TEST_F(OpenResultTest, ATruncatedHeaderIsError62) {
  for (const std::size_t size : {0U, 1U, 2U, 511U}) {
    ExpectRunTimeError(TrialBuilder().Build().TruncateTo(size), kInputPastEndOfFile);
  }
}

TEST_F(OpenResultTest, AMissingSectionHeaderIsError62) {
  for (const std::size_t size : {512U, 513U, 515U}) {
    ExpectRunTimeError(TrialBuilder().Build().TruncateTo(size), kInputPastEndOfFile);
  }
  ExpectRunTimeError(TrialBuilder().Build().SetByte(tests::header::kParamBlockPointer, 255),
                     kInputPastEndOfFile);
}

TEST_F(OpenResultTest, AChainThatLeavesTheFileIsError62) {
  Trial trial = TrialBuilder().Build();
  ExpectRunTimeError(trial.SetOffset(trial.GroupPosition("POINT"), 32767), kInputPastEndOfFile);
}

TEST_F(OpenResultTest, AParameterOf7DimensionsOf255IsError62) {
  ExpectRunTimeError(
      TrialBuilder()
          .SetParam("HUGE",
                    {"X", std::vector<std::uint8_t>(7, 255), std::vector<float>{1}, "", false, {}})
          .Build(),
      kInputPastEndOfFile);
}

TEST_F(OpenResultTest, AParameterOf8DimensionsIsError9) {
  ExpectRunTimeError(
      TrialBuilder()
          .SetParam("MANY",
                    {"X", std::vector<std::uint8_t>(8, 1), std::vector<float>{1}, "", false, {}})
          .Build(),
      9);
}

TEST_F(OpenResultTest, AnErrorInTheEventStepClosesTheFile) {
  TrialBuilder().Build().WriteTo(opener_.File());
  EXPECT_EQ(ErrorNumberOf([this] {
              OpenC3dFile(State(), opener_.File(), [](FileState& /*state*/) {
                throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::Overflow);
              });
            }),
            kOverflow);
  EXPECT_FALSE(State().C3dFileNumber.IsOpen());
}

TEST_F(OpenResultTest, TheEventStepRunsOnceAtTheEndOfASuccessfulOpenOnly) {
  int runs = 0;
  const EventSteps count = [&runs](FileState& state) {
    EXPECT_GT(state.TimeBetweenFrames, 0.0F);
    EXPECT_TRUE(state.C3dFileNumber.IsOpen());
    ++runs;
  };
  TrialBuilder().Build().WriteTo(opener_.File());
  OpenC3dFile(State(), opener_.File(), count);
  EXPECT_EQ(runs, 1);
  TrialBuilder().Rate(0).Build().WriteTo(opener_.File());
  OpenC3dFile(State(), opener_.File(), count);
  EXPECT_EQ(runs, 1);
}

TEST(OpenFailureMessage, IsTheSentenceOfEachResult) {
  const auto message = [](int code) { return OpenFailureMessage(static_cast<OpenResult>(code)); };
  EXPECT_EQ(message(0), "");
  EXPECT_EQ(message(1), "File open error while attempting to open C3D file.");
  EXPECT_EQ(message(2), "Not a valid C3D file.  The file key value was not found.");
  EXPECT_EQ(message(3),
            "Data not stored as eiher Intel (IEEE) or DEC format.  (MIPS format not supported.)  "
            "Can't read this C3D file.");
  EXPECT_EQ(message(4),
            "More than one subject (patient) was found in the file.  These files can not be read.");
  EXPECT_EQ(message(5),
            "The scale factor used for scaling data is corrupted.  Can't read this C3D file.");
  EXPECT_EQ(message(6),
            "No point labels were defined in this file (or label count variable is corrupt).  "
            "Can't read this C3D file.");
  EXPECT_EQ(message(7),
            "No frames were stored in this file (or frame count variable is corrupt).  Can't read "
            "this C3D file.");
  EXPECT_EQ(message(8), "The point frame rate is not set.  Can't read this C3D file.");
  EXPECT_EQ(message(9),
            "The giTypeOfMotionSystem is set to MAC and the .EVT and/or .DATA file can't be found. "
            " Can't read this C3D file.");
}

}  // namespace
