// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <bit>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/C3dFormat.h"
#include "c3d/FrameData.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using sample::Storage;
using sample::TrialBuilder;
using tests::ErrorNumberOf;
using tests::OpenedTrial;

using tests::kDivisionByZero;
using tests::kInputPastEndOfFile;
using tests::kSubscriptOutOfRange;
constexpr std::int32_t kSamplesPerChannelPosition = 19;

// One point; `channels` channels with `samples` samples a frame, each value different: sample s of
// channel c holds 1000 * c + s.
TrialBuilder Channels(std::int16_t channels, std::int16_t samples, Storage storage) {
  TrialBuilder builder;
  builder.StoredAs(storage).Frames(1, 3).SamplesPerFrame(samples);
  for (std::int16_t channel = 1; channel <= channels; ++channel) {
    builder.AddAnalog(tests::Numbered("C", channel), "", [channel](std::int32_t sample) {
      return 1000.0F * static_cast<float>(channel) + static_cast<float>(sample);
    });
  }
  return builder;
}

// The same bytes with another number of samples in the header.
sample::Trial WithSamplesPerChannel(const TrialBuilder& builder, std::int16_t samples) {
  return builder.Build().SetInteger(kSamplesPerChannelPosition, samples);
}

std::vector<float> Samples(const AnalogFrame& frame) {
  return {frame.Values.begin(), frame.Values.end()};
}

std::int16_t IntegerAt(const sample::Trial& trial, std::int32_t position) {
  std::int16_t value = 0;
  std::memcpy(&value, trial.Bytes().data() + position - 1, sizeof value);
  return value;
}

float SingleAt(const sample::Trial& trial, std::int32_t position) {
  float value = 0;
  std::memcpy(&value, trial.Bytes().data() + position - 1, sizeof value);
  return value;
}

TEST(AnalogData, SamplesOfAChannelStandAllChannelsApart) {
  for (const Storage storage : {Storage::Integer, Storage::Single}) {
    OpenedTrial trial(Channels(3, 4, storage));
    for (std::int32_t channel = 1; channel <= 3; ++channel) {
      const AnalogFrames frames = ReadAnalogDataForIndex(trial.State(), channel);
      ASSERT_EQ(frames.Count(), 3);
      for (std::int32_t frame = 1; frame <= 3; ++frame) {
        for (std::int32_t k = 1; k <= 4; ++k) {
          EXPECT_EQ(frames[frame].Values[k], 1000.0F * static_cast<float>(channel) +
                                                 static_cast<float>(4 * (frame - 1) + k));
        }
      }
    }
  }
}

TEST(AnalogData, SampleOutsideTheFrameIsAnIndexError) {
  OpenedTrial trial(Channels(3, 4, Storage::Integer));
  const AnalogFrames frames = ReadAnalogDataForIndex(trial.State(), 1);
  for (const std::int32_t index : {-1, 0, 5}) {
    EXPECT_EQ(ErrorNumberOf([&] { (void)frames[1].Values[index]; }), kSubscriptOutOfRange);
  }
  EXPECT_EQ(ErrorNumberOf([] { (void)AnalogFrame().Values[1]; }), kSubscriptOutOfRange);
}

TEST(AnalogData, FrameOutlivesTheOthersOfItsChannel) {
  AnalogFrame frame;
  {
    OpenedTrial trial(Channels(3, 4, Storage::Integer));
    frame = ReadAnalogDataForIndex(trial.State(), 2)[3];
  }
  EXPECT_EQ(Samples(frame), (std::vector{2009.0F, 2010.0F, 2011.0F, 2012.0F}));
}

TEST(AnalogData, FramesThatAreClaimedButMissingAreAnErrorAtOnce) {
  OpenedTrial trial(Channels(1, 32767, Storage::Integer).Build().ClaimFrames(1, 32767));
  ASSERT_EQ(trial.State().PointFrameCount, 32767);
  EXPECT_EQ(ErrorNumberOf([&] { ReadAnalogDataForIndex(trial.State(), 1); }), kInputPastEndOfFile)
      << "no memory is taken for a thousand million samples";
}

TEST(AnalogData, AllSamplesOfAFrameShareItsTime) {
  OpenedTrial trial(Channels(1, 4, Storage::Integer).Frames(21, 23).Rate(200));
  const AnalogFrames frames = ReadAnalogDataForIndex(trial.State(), 1);
  EXPECT_EQ(frames[1].Time, trial.State().WalkStartTime);
  EXPECT_EQ(frames[3].Time, static_cast<float>(0.005 * 2 + double{trial.State().WalkStartTime}));
}

TEST(AnalogData, NextFramePositionIsThatOfTheFirstSampleAndEndsInZero) {
  OpenedTrial trial(Channels(3, 4, Storage::Integer));
  const std::int32_t first = trial.State().SeekPtrForFirstFrameData + 8 + 1 * 2;
  const std::int32_t frameSize = 8 + 12 * 2;
  const AnalogFrames frames = ReadAnalogDataForIndex(trial.State(), 2);
  EXPECT_EQ(frames[1].NextFramePosition, first + frameSize);
  EXPECT_EQ(frames[2].NextFramePosition, first + 2 * frameSize);
  EXPECT_EQ(frames[3].NextFramePosition, 0);
}

TEST(AnalogData, ReadingAFrameMovesThePositionBehindItsLastSample) {
  OpenedTrial trial(Channels(3, 4, Storage::Integer));
  std::int32_t position = trial.State().SeekPtrForFirstFrameData + 8;
  const std::int32_t first = position;
  EXPECT_EQ(ReadAnalogFrameAt(trial.State(), position).Values[2], 1002.0F);
  EXPECT_EQ(position, first + 4 * 3 * 2);
}

TEST(AnalogData, ChannelOutsideTheCountIsEmpty) {
  OpenedTrial trial(Channels(3, 4, Storage::Integer));
  for (const std::int32_t channel : {-1, 0, 4, 32767}) {
    EXPECT_TRUE(ReadAnalogDataForIndex(trial.State(), channel).IsEmpty()) << channel;
  }
}

TEST(AnalogData, TrialWithoutChannelsHasNoAnalogLabels) {
  OpenedTrial trial{TrialBuilder()};
  EXPECT_EQ(trial.State().AnalogChannelsCount, 0.0F);
  EXPECT_FALSE(AnalogLabelExists(trial.State(), ""));
  EXPECT_TRUE(ReadAnalogDataForIndex(trial.State(), 1).IsEmpty());
}

TEST(AnalogData, TwoAndAHalfChannelsOfFloatsAreTenBytesApart) {
  const sample::Trial bytes = WithSamplesPerChannel(Channels(2, 5, Storage::Single), 4);
  OpenedTrial trial(bytes);
  ASSERT_EQ(trial.State().AnalogChannelsCount, 2.5F);
  EXPECT_EQ(trial.State().AnalogLabels.Count(), 2) << "2.5 rounds to the even 2";
  const std::int32_t frameSize = 16 + 10 * 4;
  for (const std::int32_t channel : {1, 2}) {
    const AnalogFrames frames = GetAnalogDataForLabel(trial.State(), channel == 1 ? "C1" : "C2");
    ASSERT_EQ(frames.Count(), 3);
    for (std::int32_t frame = 1; frame <= 3; ++frame) {
      const std::int32_t first =
          bytes.FrameDataPosition() + (frame - 1) * frameSize + 16 + (channel - 1) * 4;
      for (std::int32_t k = 1; k <= 4; ++k) {
        const float expected = SingleAt(bytes, first + 10 * (k - 1));
        EXPECT_EQ(std::bit_cast<std::uint32_t>(frames[frame].Values[k]),
                  std::bit_cast<std::uint32_t>(expected));
      }
    }
  }
  EXPECT_TRUE(ReadAnalogDataForIndex(trial.State(), 3).IsEmpty()) << "3 is above 2.5";
}

TEST(AnalogData, TwoAndAHalfChannelsOfIntegersAreFiveBytesApart) {
  const sample::Trial bytes = WithSamplesPerChannel(Channels(2, 5, Storage::Integer), 4);
  OpenedTrial trial(bytes);
  const std::int32_t frameSize = 8 + 10 * 2;
  for (const std::int32_t channel : {1, 2}) {
    const AnalogFrames frames = ReadAnalogDataForIndex(trial.State(), channel);
    for (std::int32_t frame = 1; frame <= 2; ++frame) {
      const std::int32_t first =
          bytes.FrameDataPosition() + (frame - 1) * frameSize + 8 + (channel - 1) * 2;
      for (std::int32_t k = 1; k <= 4; ++k) {
        EXPECT_EQ(frames[frame].Values[k], IntegerAt(bytes, first + 5 * (k - 1)));
      }
    }
  }
}

TEST(AnalogData, HalvesOfASumRoundToTheEvenPosition) {
  // 7 values in 4 samples: 1.75 channels of 2 bytes, a step of 3.5.
  const sample::Trial bytes = WithSamplesPerChannel(Channels(7, 1, Storage::Integer), 4);
  OpenedTrial trial(bytes);
  ASSERT_EQ(trial.State().AnalogChannelsCount, 1.75F);
  const std::int32_t first = bytes.FrameDataPosition() + 8;
  ASSERT_EQ(first % 2, 1) << "frame data start at an odd position";
  const AnalogFrames frames = ReadAnalogDataForIndex(trial.State(), 1);
  // From an odd position p: p + 3.5 rounds down to p + 3; from there on each half rounds up.
  EXPECT_EQ(frames[1].Values[1], IntegerAt(bytes, first));
  EXPECT_EQ(frames[1].Values[2], IntegerAt(bytes, first + 3));
  EXPECT_EQ(frames[1].Values[3], IntegerAt(bytes, first + 7));
  EXPECT_EQ(frames[1].Values[4], IntegerAt(bytes, first + 11));
}

TEST(AnalogData, ChannelAboveAFractionHasALabelButNoData) {
  OpenedTrial trial(WithSamplesPerChannel(Channels(7, 1, Storage::Integer), 4));
  EXPECT_EQ(trial.State().AnalogLabels.Count(), 2) << "1.75 rounds to 2";
  EXPECT_TRUE(AnalogLabelExists(trial.State(), "C2"));
  EXPECT_TRUE(GetAnalogDataForLabel(trial.State(), "C2").IsEmpty());
  trial.State().StrideEventFrames.Append({1, GaitSide::Left, GaitEventType::FootStrike});
  trial.State().StrideEventFrameCount = 1;
  EXPECT_EQ(ErrorNumberOf([&] { GetAnalogDataWithEventsForLabel(trial.State(), "C2"); }),
            kSubscriptOutOfRange);
}

TEST(AnalogData, CutDataIsAnErrorOnlyForTheChannelsThatAreCut) {
  const sample::Trial whole = Channels(3, 4, Storage::Integer).Build();
  sample::Trial cut = whole;
  cut.TruncateTo(whole.Size() - 4);
  OpenedTrial trial(cut);
  EXPECT_EQ(ReadAnalogDataForIndex(trial.State(), 1)[3].Values[4], 1012.0F);
  EXPECT_EQ(ErrorNumberOf([&] { ReadAnalogDataForIndex(trial.State(), 2); }), kInputPastEndOfFile);
  EXPECT_EQ(ErrorNumberOf([&] { ReadAnalogDataForIndex(trial.State(), 3); }), kInputPastEndOfFile);
}

TEST(AnalogData, UnknownStorageIsADivisionByZero) {
  OpenedTrial trial(Channels(3, 4, Storage::Integer));
  trial.State().DataStoredAsIntegerOrSingle = 0;
  std::int32_t position = trial.State().SeekPtrForFirstFrameData;
  EXPECT_EQ(ErrorNumberOf([&] { ReadAnalogFrameAt(trial.State(), position); }), kDivisionByZero);
  EXPECT_EQ(ErrorNumberOf([&] { ReadAnalogDataForIndex(trial.State(), 1); }), kDivisionByZero);
}

// Only a large file leaves more bytes between a channel's samples of two frames than are worth
// reading along: 255 points of 16 bytes are not enough, so the label table is left short.
TEST(AnalogData, LargeFramesGiveTheValuesOfSmallOnes) {
  OpenedTrial small(Channels(2, 4, Storage::Single));
  TrialBuilder points = Channels(2, 4, Storage::Single);
  points.SetParam("POINT", sample::TextListParam("LABELS", {"Q"}));
  for (int i = 0; i < 600; ++i) {
    points.AddPoint("Q", [](std::int32_t) { return std::array{1.0F, 2.0F, 3.0F}; });
  }
  OpenedTrial large(points);
  ASSERT_EQ(large.Result(), OpenResult::Success);
  ASSERT_GT(large.State().Header.PointLabelCount * 16, 8192 + 16);
  for (std::int32_t channel = 1; channel <= 2; ++channel) {
    const AnalogFrames expected = ReadAnalogDataForIndex(small.State(), channel);
    const AnalogFrames frames = ReadAnalogDataForIndex(large.State(), channel);
    ASSERT_EQ(frames.Count(), expected.Count());
    for (std::int32_t i = 1; i <= frames.Count(); ++i) {
      EXPECT_EQ(Samples(frames[i]), Samples(expected[i]));
      EXPECT_EQ(frames[i].Time, expected[i].Time);
    }
  }
}

}  // namespace
