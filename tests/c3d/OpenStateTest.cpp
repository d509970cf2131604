// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/OpenC3dFile.h"
#include "tests/TestTrials.h"

namespace {

using namespace modVantrel;
using sample::Storage;
using sample::Trial;
using sample::TrialBuilder;
using tests::Entries;
using tests::Origin;
using tests::Silence;

using Integers = std::vector<std::int16_t>;

// "E1  " to "E18 ": four characters, as the header has them.
std::string EventLabel(std::uint8_t number) {
  std::string label("E");
  label += std::to_string(number);
  label.resize(4, ' ');
  return label;
}

class OpenStateTest : public testing::Test {
 protected:
  void Given(const Trial& trial) { ASSERT_EQ(opener_.Open(trial), OpenResult::Success); }
  void Given(const TrialBuilder& builder) { Given(builder.Build()); }

  FileState& State() { return opener_.State(); }
  const C3dHeader& Header() { return opener_.State().Header; }

  tests::TrialOpener opener_;
};

TEST_F(OpenStateTest, EveryHeaderFieldComesFromItsPlace) {
  TrialBuilder builder;
  builder.Frames(5, 64).Rate(120).Scale(0.5F).AddAnalog("EMG1", "first", Silence);
  builder.SamplesPerFrame(10);
  for (std::uint8_t i = 1; i <= 18; ++i) {
    builder.AddHeaderEvent(EventLabel(i), 0.5F * static_cast<float>(i), i);
  }
  Trial trial = builder.Build();
  Given(trial.SetByte(tests::header::kReserved1, 'a')
            .SetByte(tests::header::kReserved1 + 273, 'b')
            .SetByte(tests::header::kReserved2 + 1, 'c')
            .SetByte(tests::header::kReserved3, 'd')
            .SetByte(tests::header::kReserved4, 'e')
            .SetByte(512, 'f'));
  EXPECT_EQ(Header().ParamBlockPointer, 2);
  EXPECT_EQ(Header().FileID, 80);
  EXPECT_EQ(Header().PointLabelCount, 1);
  EXPECT_EQ(Header().AnalogValuesPerFrame, 10);
  EXPECT_EQ(Header().FirstPointFrameNumber, 5);
  EXPECT_EQ(Header().LastPointFrameNumber, 64);
  EXPECT_EQ(Header().MaxInterpolationGapAllowed, 10);
  EXPECT_EQ(Header().ScaleFactor, 0.5F);
  EXPECT_EQ(Header().AnalogSamplesPerChannel, 10);
  EXPECT_EQ(Header().PointFrameRate, 120.0F);
  EXPECT_EQ(Header().EventDataFlag, 12345);
  EXPECT_EQ(Header().TimedEventsCount, 18);
  EXPECT_EQ(Header().Reserved1.front(), std::byte{'a'});
  EXPECT_EQ(Header().Reserved1.back(), std::byte{'b'});
  EXPECT_EQ(Header().Reserved2[1], std::byte{'c'});
  EXPECT_EQ(Header().Reserved3.front(), std::byte{'d'});
  EXPECT_EQ(Header().Reserved4.front(), std::byte{'e'});
  EXPECT_EQ(Header().Reserved4.back(), std::byte{'f'});
  for (std::uint8_t i = 1; i <= 18; ++i) {
    EXPECT_EQ(Header().EventTimes[i], 0.5F * static_cast<float>(i));
    EXPECT_EQ(Header().EventDisplaySwitches[i], i);
    EXPECT_EQ(Header().EventLabels[i], EventLabel(i));
  }
}

TEST_F(OpenStateTest, DerivedValuesFollowFromTheHeader) {
  const Trial trial = TrialBuilder()
                          .Frames(5, 64)
                          .Rate(120)
                          .AddAnalog("A", "", Silence)
                          .AddAnalog("B", "", Silence)
                          .SamplesPerFrame(10)
                          .Build();
  Given(trial);
  EXPECT_EQ(State().OpenC3dFileSpec, opener_.File());
  EXPECT_EQ(State().ProcessorType, 84);
  EXPECT_EQ(State().DataStoredAsIntegerOrSingle, 1);
  EXPECT_EQ(State().AnalogChannelsCount, 2.0F);
  EXPECT_EQ(State().AnalogFrameRate, 1200.0F);
  EXPECT_EQ(State().SeekPtrForFirstC3dParam, 517);
  EXPECT_EQ(State().SeekPtrForFirstFrameData, trial.FrameDataPosition());
  EXPECT_EQ(State().PointFrameCount, 60);
  EXPECT_EQ(State().TimeBetweenFrames, 0.008333333767950535F);
  EXPECT_EQ(State().ElapsedTimeOfWalk, 0.49166667461395264F);
  EXPECT_EQ(State().WalkStartTime, 0.03333333507180214F);
  EXPECT_EQ(State().WalkEndTime, 0.5250000357627869F);
}

TEST_F(OpenStateTest, TheSectionMayStartInALaterBlock) {
  Given(TrialBuilder().ParamBlock(4));
  EXPECT_EQ(State().SeekPtrForFirstC3dParam, 3 * 512 + 5);
  EXPECT_EQ(State().PointLabels[1], "LTOE");
}

TEST_F(OpenStateTest, ADataBlockAbove32767IsReadAsUnsigned) {
  Given(TrialBuilder().Build().SetInteger(tests::header::kFirstMarkerAndAnalogBlockPointer,
                                          static_cast<std::int16_t>(40000)));
  EXPECT_EQ(State().SeekPtrForFirstFrameData, 39999 * 512 + 1);
}

TEST_F(OpenStateTest, NegativeFirstFramesCount) {
  Given(TrialBuilder().Build().ClaimFrames(-5, 5));
  EXPECT_EQ(State().PointFrameCount, 11);
  EXPECT_FLOAT_EQ(State().WalkStartTime, -0.06F);
}

TEST_F(OpenStateTest, ANegativeScaleMeansSinglesAndLosesItsSign) {
  Given(TrialBuilder().StoredAs(Storage::Single).Scale(0.25F));
  EXPECT_EQ(State().DataStoredAsIntegerOrSingle, 2);
  EXPECT_EQ(Header().ScaleFactor, 0.25F);
}

TEST_F(OpenStateTest, ACameraRateOverridesTheHeaderRate) {
  Given(TrialBuilder().Rate(50).SetParam("TRIAL", sample::SingleParam("CAMERA_RATE", 200)));
  EXPECT_EQ(Header().PointFrameRate, 200.0F);
  EXPECT_EQ(State().TimeBetweenFrames, 0.005F);
  EXPECT_EQ(State().AnalogFrameRate, 50.0F) << "from the header's own rate";
}

TEST_F(OpenStateTest, ACameraRateMakesUpForAHeaderRateOf0) {
  Given(TrialBuilder().Rate(0).SetParam("TRIAL", sample::SingleParam("CAMERA_RATE", 120)));
  EXPECT_EQ(Header().PointFrameRate, 120.0F);
  EXPECT_EQ(State().AnalogFrameRate, 0.0F);
}

TEST_F(OpenStateTest, ACameraRateOfAnotherTypeIsIgnored) {
  Given(TrialBuilder().Rate(50).SetParam("TRIAL", sample::IntegerParam("CAMERA_RATE", 200)));
  EXPECT_EQ(Header().PointFrameRate, 50.0F);
}

TEST_F(OpenStateTest, ACameraRateOfAnotherGroupIsIgnored) {
  Given(TrialBuilder()
            .Rate(50)
            .SetParam("TRIAL", sample::SingleParam("OTHER", 1))
            .SetParam("LAST", sample::SingleParam("CAMERA_RATE", 200)));
  EXPECT_EQ(Header().PointFrameRate, 50.0F);
}

TEST_F(OpenStateTest, IntelAndDecTrialsGiveTheSameState) {
  for (const Storage storage : {Storage::Integer, Storage::Single}) {
    const auto builder = TrialBuilder().StoredAs(storage).Rate(120).AddHeaderEvent("RHS", 0.3F, 1);
    Given(TrialBuilder(builder).Processor(kProcessorIntel));
    const float rate = Header().PointFrameRate;
    const float scale = Header().ScaleFactor;
    const float eventTime = Header().EventTimes[1];
    const float endTime = State().WalkEndTime;
    Given(TrialBuilder(builder).Processor(kProcessorDec));
    EXPECT_EQ(State().ProcessorType, 85);
    EXPECT_EQ(Header().PointFrameRate, rate);
    EXPECT_EQ(Header().ScaleFactor, scale);
    EXPECT_EQ(Header().EventTimes[1], eventTime);
    EXPECT_EQ(State().WalkEndTime, endTime);
    EXPECT_EQ(State().PointLabels[1], "LTOE");
  }
}

TEST_F(OpenStateTest, TheStoredBytesOf48Point5AreReadByTheProcessor) {
  const auto withRateBytes = [](std::uint8_t processor) {
    return TrialBuilder()
        .Processor(processor)
        .SetParam("TRIAL", sample::SingleParam("CAMERA_RATE", 48.5F))
        .Build();
  };
  const Trial dec = withRateBytes(kProcessorDec);
  // The data stand behind the name length, the id, the name, the offset word, the type and the
  // dimensions.
  const std::ptrdiff_t record = dec.ParamPosition("TRIAL", "CAMERA_RATE") - 1;
  const auto data = dec.Bytes().begin() + record + 2 + 11 + 2 + 2;
  EXPECT_EQ(std::vector(data, data + 4),
            (std::vector{std::byte{0x42}, std::byte{0x43}, std::byte{0}, std::byte{0}}));
  Given(dec);
  EXPECT_EQ(Header().PointFrameRate, 48.5F);
  Given(withRateBytes(kProcessorIntel));
  EXPECT_EQ(Header().PointFrameRate, 48.5F);
}

TEST_F(OpenStateTest, NoSamplesPerChannelMeansNoChannelsWhateverTheHeaderCounts) {
  for (const std::int16_t samples : Integers{0, -1}) {
    Given(TrialBuilder()
              .Build()
              .SetInteger(tests::header::kAnalogValuesPerFrame, 12)
              .SetInteger(tests::header::kAnalogSamplesPerChannel, samples));
    EXPECT_EQ(State().AnalogChannelsCount, 0.0F);
    EXPECT_TRUE(State().AnalogLabels.IsEmpty());
    EXPECT_TRUE(State().AnalogDescriptions.IsEmpty());
  }
}

TEST_F(OpenStateTest, AFractionOfAChannelIsKeptAndRoundsToTheEvenTableSize) {
  struct Row {
    std::int16_t Values;
    float Channels;
    std::int32_t TableSize;
  };
  for (const Row& row : {Row{10, 2.5F, 2}, Row{14, 3.5F, 4}, Row{11, 2.75F, 3}, Row{1, 0.25F, 0},
                         Row{2, 0.5F, 0}, Row{-10, -2.5F, 0}}) {
    Given(TrialBuilder()
              .Build()
              .SetInteger(tests::header::kAnalogValuesPerFrame, row.Values)
              .SetInteger(tests::header::kAnalogSamplesPerChannel, 4));
    EXPECT_EQ(State().AnalogChannelsCount, row.Channels);
    EXPECT_EQ(State().AnalogLabels.Count(), row.TableSize);
    EXPECT_EQ(State().AnalogDescriptions.Count(), row.TableSize);
  }
}

TEST_F(OpenStateTest, PointLabelsBeyondThoseOfTheFileAreEmpty) {
  Given(TrialBuilder().Build().SetInteger(tests::header::kPointLabelCount, 3));
  EXPECT_EQ(Entries(State().PointLabels), (std::vector<std::string>{"LTOE", "", ""}));
}

TEST_F(OpenStateTest, PointLabelsBeyondTheHeadersCountAreLeftOut) {
  Given(TrialBuilder()
            .AddPoint("A", Origin)
            .AddPoint("B", Origin)
            .Build()
            .SetInteger(tests::header::kPointLabelCount, 1));
  EXPECT_EQ(Entries(State().PointLabels), std::vector<std::string>{"A"});
}

TEST_F(OpenStateTest, WithoutPointLabelsOfTextTypeAllAreEmpty) {
  Given(TrialBuilder().DropParam("POINT", "LABELS"));
  EXPECT_EQ(Entries(State().PointLabels), std::vector<std::string>{""});
  Given(TrialBuilder().SetParam("POINT", sample::IntegerParam("LABELS", 1)));
  EXPECT_EQ(Entries(State().PointLabels), std::vector<std::string>{""});
}

TEST_F(OpenStateTest, LabelsAreTakenFromTheFirstColumnOnly) {
  Given(TrialBuilder()
            .SetParam(
                "POINT",
                {"LABELS", {1, 2, 2}, std::vector<std::string>{"a", "b", "c", "d"}, "", false, {}})
            .Build()
            .SetInteger(tests::header::kPointLabelCount, 3));
  EXPECT_EQ(Entries(State().PointLabels), (std::vector<std::string>{"a", "b", ""}));
}

TEST_F(OpenStateTest, AnalogTablesHoldLabelsAndDescriptions) {
  Given(TrialBuilder().AddAnalog(" FZ1 ", "force", Silence).AddAnalog("EMG", "", Silence));
  EXPECT_EQ(Entries(State().AnalogLabels), (std::vector<std::string>{"FZ1", "EMG"}));
  EXPECT_EQ(Entries(State().AnalogDescriptions), (std::vector<std::string>{"force", ""}));
}

TEST_F(OpenStateTest, AnalogTablesStayEmptyWhereEitherParameterIsMissing) {
  for (const std::string missing : {"LABELS", "DESCRIPTIONS"}) {
    Given(TrialBuilder().AddAnalog("FZ1", "force", Silence).DropParam("ANALOG", missing));
    EXPECT_EQ(Entries(State().AnalogLabels), std::vector<std::string>{""});
    EXPECT_EQ(Entries(State().AnalogDescriptions), std::vector<std::string>{""});
  }
}

TEST_F(OpenStateTest, ATrialWithoutChannelsErasesTheAnalogTablesOfTheFormerOne) {
  Given(TrialBuilder().AddAnalog("FZ1", "force", Silence));
  Given(TrialBuilder());
  EXPECT_TRUE(State().AnalogLabels.IsEmpty());
  EXPECT_TRUE(State().AnalogDescriptions.IsEmpty());
}

TEST_F(OpenStateTest, SideFilePathsAreEmptyAfterAnOpen) {
  State().EvtFileSpec = "a.evt";
  State().DataFileSpec = "a.data";
  Given(TrialBuilder());
  EXPECT_EQ(State().EvtFileSpec, "");
  EXPECT_EQ(State().DataFileSpec, "");
}

}  // namespace
