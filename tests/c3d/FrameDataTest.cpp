// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cmath>
#include <filesystem>
#include <limits>
#include <string>

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

using tests::kBadRecordNumber;
using tests::kDivisionByZero;
using tests::kInputPastEndOfFile;
using tests::kSubscriptOutOfRange;

// Values that a scale of 0.5 stores as whole numbers, different in every label and frame.
std::array<float, 3> Coordinates(std::int32_t label, std::int32_t frame) {
  const float base = 100.0F * static_cast<float>(label) + static_cast<float>(frame);
  return {base, -base - 0.5F, 0.5F * static_cast<float>(frame)};
}

TrialBuilder ThreePoints() {
  TrialBuilder builder;
  builder.Scale(0.5F).Frames(11, 14).Rate(50);
  for (std::int32_t label = 1; label <= 3; ++label) {
    builder.AddPoint(tests::Numbered("P", label),
                     [label](std::int32_t frame) { return Coordinates(label, frame); });
  }
  builder.SamplesPerFrame(2).AddAnalog(
      "Fz", "Force", [](std::int32_t sample) { return static_cast<float>(-sample); });
  return builder;
}

struct Form {
  std::uint8_t Processor;
  Storage StoredAs;
};

class EveryForm : public testing::TestWithParam<Form> {};

INSTANTIATE_TEST_SUITE_P(
    FrameData, EveryForm,
    testing::Values(Form{kProcessorIntel, Storage::Integer}, Form{kProcessorIntel, Storage::Single},
                    Form{kProcessorDec, Storage::Integer}, Form{kProcessorDec, Storage::Single}),
    [](const auto& form) {
      const bool intel = form.param.Processor == kProcessorIntel;
      const bool integer = form.param.StoredAs == Storage::Integer;
      return std::string(intel ? "Intel" : "Dec") + (integer ? "Integer" : "Single");
    });

TEST_P(EveryForm, GivesEachLabelItsOwnValuesInEveryFrame) {
  OpenedTrial trial(ThreePoints().Processor(GetParam().Processor).StoredAs(GetParam().StoredAs));
  ASSERT_EQ(trial.Result(), OpenResult::Success);
  for (std::int32_t label = 1; label <= 3; ++label) {
    const PointSamples samples = ReadPointDataForIndex(trial.State(), label);
    ASSERT_EQ(samples.Count(), 4);
    for (std::int32_t frame = 1; frame <= 4; ++frame) {
      const auto expected = Coordinates(label, frame);
      EXPECT_EQ(samples[frame].X, expected[0]);
      EXPECT_EQ(samples[frame].Y, expected[1]);
      EXPECT_EQ(samples[frame].Z, expected[2]);
      EXPECT_EQ(samples[frame].EventType, GaitEventType::Other);
      EXPECT_EQ(samples[frame].EventSide, GaitSide::None);
    }
  }
}

TEST_P(EveryForm, NextPositionsLeadThroughFramesAndLabelsAndEndInZero) {
  OpenedTrial trial(ThreePoints().Processor(GetParam().Processor).StoredAs(GetParam().StoredAs));
  const std::int32_t first = trial.State().SeekPtrForFirstFrameData;
  const bool integer = GetParam().StoredAs == Storage::Integer;
  const std::int32_t pointSize = integer ? 8 : 16;
  const std::int32_t frameSize = 3 * pointSize + 2 * (integer ? 2 : 4);
  for (std::int32_t label = 1; label <= 3; ++label) {
    const PointSamples samples = ReadPointDataForIndex(trial.State(), label);
    for (std::int32_t frame = 1; frame <= 4; ++frame) {
      const std::int32_t position = first + (frame - 1) * frameSize + (label - 1) * pointSize;
      EXPECT_EQ(samples[frame].NextFramePosition, frame == 4 ? 0 : position + frameSize);
      EXPECT_EQ(samples[frame].NextPointPosition, label == 3 ? 0 : position + pointSize);
    }
  }
}

TEST_P(EveryForm, AnalogSamplesAreTheStoredValuesInTimeOrder) {
  OpenedTrial trial(ThreePoints().Processor(GetParam().Processor).StoredAs(GetParam().StoredAs));
  const AnalogFrames frames = GetAnalogDataForLabel(trial.State(), "Fz");
  ASSERT_EQ(frames.Count(), 4);
  // The builder divides coordinates by the scale, channels are raw counts.
  for (std::int32_t frame = 1; frame <= 4; ++frame) {
    ASSERT_EQ(frames[frame].Values.Count(), 2);
    EXPECT_EQ(frames[frame].Values[1], static_cast<float>(-(2 * frame - 1)));
    EXPECT_EQ(frames[frame].Values[2], static_cast<float>(-(2 * frame)));
  }
}

TEST_P(EveryForm, NeighboursReadTogetherAreThoseReadOneByOne) {
  OpenedTrial trial(ThreePoints().Processor(GetParam().Processor).StoredAs(GetParam().StoredAs));
  const auto points = ReadPointDataForIndexes(trial.State(), 2, 2);
  ASSERT_EQ(points.size(), 2U);
  for (std::int32_t i = 0; i < 2; ++i) {
    const PointSamples alone = ReadPointDataForIndex(trial.State(), 2 + i);
    const PointSamples& together = points[static_cast<std::size_t>(i)];
    ASSERT_EQ(together.Count(), alone.Count());
    for (std::int32_t frame = 1; frame <= alone.Count(); ++frame) {
      const PointSample& sample = together[frame];
      EXPECT_EQ(sample.X, Coordinates(2 + i, frame)[0]);
      EXPECT_EQ(sample.Y, alone[frame].Y);
      EXPECT_EQ(sample.Z, alone[frame].Z);
      EXPECT_EQ(sample.Time, alone[frame].Time);
      EXPECT_EQ(sample.FourthWord, alone[frame].FourthWord);
      EXPECT_EQ(sample.NextFramePosition, alone[frame].NextFramePosition);
      EXPECT_EQ(sample.NextPointPosition, alone[frame].NextPointPosition);
    }
  }
}

TEST(PointData, NeighboursBeyondTheLastLabelAreEmpty) {
  OpenedTrial trial(ThreePoints());
  for (const auto& samples : ReadPointDataForIndexes(trial.State(), 3, 2)) {
    EXPECT_TRUE(samples.IsEmpty());
  }
}

TEST(PointData, ScaleMultipliesIntegersOnlyAndIsNeverAppliedToFloats) {
  TrialBuilder builder;
  builder.AddPoint("A", [](std::int32_t frame) {
    return std::array{0.1F * static_cast<float>(frame), 0.0F, -0.3F};
  });
  OpenedTrial integers(builder.Scale(0.1F).StoredAs(Storage::Integer));
  const float scale = 0.1F;
  EXPECT_EQ(ReadPointDataForIndex(integers.State(), 1)[7].X, static_cast<float>(7 * double{scale}));
  EXPECT_EQ(ReadPointDataForIndex(integers.State(), 1)[7].Z,
            static_cast<float>(-3 * double{scale}));
  OpenedTrial floats(builder.StoredAs(Storage::Single));
  EXPECT_EQ(ReadPointDataForIndex(floats.State(), 1)[7].X, 0.1F * 7.0F);
  EXPECT_EQ(ReadPointDataForIndex(floats.State(), 1)[7].Z, -0.3F);
}

TEST(PointData, FrameOneIsAtTheStartOfTheWalk) {
  OpenedTrial trial(ThreePoints());
  const PointSamples samples = ReadPointDataForIndex(trial.State(), 2);
  EXPECT_EQ(samples[1].Time, trial.State().WalkStartTime);
  EXPECT_EQ(trial.State().WalkStartTime, static_cast<float>(10 * double{0.02F}))
      << "frame 11 at 50 Hz";
  const double start = trial.State().WalkStartTime;
  for (std::int32_t i = 1; i <= 4; ++i) {
    EXPECT_EQ(samples[i].Time, static_cast<float>(1.0 / 50.0 * (i - 1) + start));
  }
}

TEST(PointData, IndexOutsideTheLabelsIsEmpty) {
  OpenedTrial trial(ThreePoints());
  for (const std::int32_t index : {-32768, -1, 0, 4, 32767}) {
    EXPECT_TRUE(ReadPointDataForIndex(trial.State(), index).IsEmpty()) << index;
  }
}

TEST(PointData, OneFrameNeverFollowsTheNextFrame) {
  OpenedTrial trial(ThreePoints().Frames(5, 5));
  for (std::int32_t label = 1; label <= 3; ++label) {
    const PointSamples samples = ReadPointDataForIndex(trial.State(), label);
    ASSERT_EQ(samples.Count(), 1);
    EXPECT_EQ(samples[1].NextFramePosition, 0);
    EXPECT_EQ(samples[1].X, Coordinates(label, 1)[0]);
  }
}

TEST(PointData, SampleAtAPositionOfALaterFrameKnowsItsTime) {
  OpenedTrial trial(ThreePoints());
  const std::int32_t position = ReadPointDataForIndex(trial.State(), 2)[2].NextFramePosition;
  const PointSample sample = ReadPointSampleAt(trial.State(), position);
  EXPECT_EQ(sample.X, Coordinates(2, 3)[0]);
  EXPECT_EQ(sample.Time, static_cast<float>(0.02 * 2 + double{trial.State().WalkStartTime}));
}

TEST(PointData, MissingSampleStaysNotANumber) {
  OpenedTrial trial(TrialBuilder().StoredAs(Storage::Single).AddPoint("A", [](std::int32_t frame) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    return std::array{frame == 2 ? nan : 1.0F, 2.0F, 3.0F};
  }));
  const PointSamples samples = ReadPointDataForIndex(trial.State(), 1);
  EXPECT_TRUE(std::isnan(samples[2].X));
  EXPECT_EQ(samples[3].X, 1.0F);
}

TEST(PointData, UnknownStorageIsADivisionByZero) {
  OpenedTrial trial(ThreePoints());
  trial.State().DataStoredAsIntegerOrSingle = 3;
  const std::int32_t first = trial.State().SeekPtrForFirstFrameData;
  EXPECT_EQ(ErrorNumberOf([&] { ReadPointSampleAt(trial.State(), first); }), kDivisionByZero);
  EXPECT_EQ(ErrorNumberOf([&] { ReadPointDataForIndex(trial.State(), 1); }), kDivisionByZero);
}

TEST(PointData, FrameSizeOfZeroIsADivisionByZero) {
  OpenedTrial trial(ThreePoints());
  trial.State().Header.AnalogValuesPerFrame = -12;
  EXPECT_EQ(ErrorNumberOf([&] { ReadPointDataForIndex(trial.State(), 1); }), kDivisionByZero);
}

TEST(PointData, FramesOfANegativeSizeLeadBackThroughTheFile) {
  OpenedTrial trial(ThreePoints());
  modVantrel::FileState& state = trial.State();
  state.Header.AnalogValuesPerFrame = -24;  // 3 points of 4 values less 24 of 2 bytes each
  const auto samples = ReadPointDataForIndex(state, 1);
  for (std::int32_t frame = 1; frame < samples.Count(); ++frame) {
    EXPECT_EQ(samples[frame].NextFramePosition, state.SeekPtrForFirstFrameData - 24 * frame);
    EXPECT_EQ(samples[frame].X,
              ReadPointSampleAt(state, state.SeekPtrForFirstFrameData - 24 * (frame - 1)).X);
  }
  EXPECT_EQ(samples[samples.Count()].NextFramePosition, 0);
}

TEST(PointData, FramesThatLeadOutOfTheFileAreABadRecordNumber) {
  OpenedTrial trial(ThreePoints());
  trial.State().Header.AnalogValuesPerFrame = -12000;
  EXPECT_EQ(ErrorNumberOf([&] { ReadPointDataForIndex(trial.State(), 1); }), kBadRecordNumber);
}

TEST(PointData, CutDataIsAnErrorOnlyForTheLabelsThatAreCut) {
  const sample::Trial whole = ThreePoints().Build();
  // The last frame is 3 * 8 + 2 * 2 bytes: cut behind its first point.
  sample::Trial cut = whole;
  cut.TruncateTo(whole.Size() - 20);
  OpenedTrial trial(cut);
  EXPECT_EQ(ReadPointDataForIndex(trial.State(), 1)[4].X, Coordinates(1, 4)[0]);
  EXPECT_EQ(ErrorNumberOf([&] { ReadPointDataForIndex(trial.State(), 2); }), kInputPastEndOfFile);
  EXPECT_EQ(ErrorNumberOf([&] { ReadPointDataForIndex(trial.State(), 3); }), kInputPastEndOfFile);
}

TEST(PointData, FrameThatIsClaimedButMissingIsAnErrorWhenItIsRead) {
  OpenedTrial trial(ThreePoints().Build().ClaimFrames(11, 15));
  ASSERT_EQ(trial.Result(), OpenResult::Success);
  EXPECT_EQ(ErrorNumberOf([&] { ReadPointDataForIndex(trial.State(), 1); }), kInputPastEndOfFile);
}

TEST(PointData, EveryCallReadsTheFileAnew) {
  const sample::Trial whole = ThreePoints().Build();
  OpenedTrial trial(whole);
  EXPECT_EQ(ReadPointDataForIndex(trial.State(), 3).Count(), 4);
  EXPECT_EQ(GetAnalogDataForLabel(trial.State(), "Fz").Count(), 4);
  std::filesystem::resize_file(trial.File(), whole.Size() - 20);
  EXPECT_EQ(ErrorNumberOf([&] { ReadPointDataForIndex(trial.State(), 3); }), kInputPastEndOfFile)
      << "the file has shrunk since the last call";
  EXPECT_EQ(ErrorNumberOf([&] { GetAnalogDataForLabel(trial.State(), "Fz"); }),
            kInputPastEndOfFile);
}

// Frames with more bytes around a label than are worth reading along are read piece by piece.
TEST(PointData, LargeFramesGiveTheValuesOfSmallOnes) {
  const auto build = [](int fillers) {
    TrialBuilder builder = ThreePoints();
    for (int i = 0; i < fillers; ++i) {
      builder.AddAnalog(tests::Numbered("C", i), "", [](std::int32_t) { return 3.0F; });
    }
    return builder;
  };
  OpenedTrial small(build(0));
  // 200 channels of 32 samples of 2 bytes: 12800 bytes a frame.
  OpenedTrial large(build(199).SamplesPerFrame(32));
  ASSERT_EQ(large.Result(), OpenResult::Success);
  ASSERT_GT(large.State().Header.AnalogValuesPerFrame * 2, 8192);
  for (std::int32_t label = 1; label <= 3; ++label) {
    const PointSamples expected = ReadPointDataForIndex(small.State(), label);
    const PointSamples samples = ReadPointDataForIndex(large.State(), label);
    ASSERT_EQ(samples.Count(), expected.Count());
    for (std::int32_t i = 1; i <= samples.Count(); ++i) {
      EXPECT_EQ(samples[i].X, expected[i].X);
      EXPECT_EQ(samples[i].Y, expected[i].Y);
      EXPECT_EQ(samples[i].Z, expected[i].Z);
      EXPECT_EQ(samples[i].Time, expected[i].Time);
    }
  }
}

TEST(Labels, MatchWhateverTheirCaseAndTheBlanksAroundThem) {
  OpenedTrial trial(ThreePoints().AddPoint("LKneeAngles", [](std::int32_t) {
    return std::array{1.0F, 2.0F, 3.0F};
  }));
  EXPECT_EQ(GetPointLabelIndex(trial.State(), "  lkneeANGLES "), 4);
  EXPECT_TRUE(PointLabelExists(trial.State(), "LKNEEANGLES"));
  EXPECT_EQ(GetPointDataForLabel(trial.State(), " lkneeangles")[4].Y, 2.0F);
  EXPECT_EQ(GetAnalogLabelIndex(trial.State(), " fZ "), 1);
  EXPECT_TRUE(AnalogLabelExists(trial.State(), "FZ"));
}

TEST(Labels, CompareAsWholeTexts) {
  OpenedTrial trial(ThreePoints());
  for (const std::string label : {"P", "P11", "P 1", "", "Fz"}) {
    EXPECT_EQ(GetPointLabelIndex(trial.State(), label), 0) << label;
    EXPECT_FALSE(PointLabelExists(trial.State(), label));
    EXPECT_TRUE(GetPointDataForLabel(trial.State(), label).IsEmpty());
    EXPECT_TRUE(GetPointDataWithEventsForLabel(trial.State(), label).IsEmpty());
  }
  for (const std::string label : {"F", "Fz1", "", "P1"}) {
    EXPECT_EQ(GetAnalogLabelIndex(trial.State(), label), 0) << label;
    EXPECT_FALSE(AnalogLabelExists(trial.State(), label));
    EXPECT_TRUE(GetAnalogDataForLabel(trial.State(), label).IsEmpty());
    EXPECT_TRUE(GetAnalogDataWithEventsForLabel(trial.State(), label).IsEmpty());
  }
}

TEST(Labels, OfTwoThatDifferInCaseOnlyTheFirstWins) {
  OpenedTrial trial(TrialBuilder()
                        .AddPoint("A",
                                  [](std::int32_t) {
                                    return std::array{1.0F, 0.0F, 0.0F};
                                  })
                        .AddPoint("ltoe",
                                  [](std::int32_t) {
                                    return std::array{2.0F, 0.0F, 0.0F};
                                  })
                        .AddPoint("LTOE", [](std::int32_t) {
                          return std::array{3.0F, 0.0F, 0.0F};
                        }));
  EXPECT_EQ(GetPointLabelIndex(trial.State(), "LTOE"), 2);
  EXPECT_EQ(GetPointDataForLabel(trial.State(), "LTOE")[1].X, 2.0F);
}

TEST(Labels, EmptyLabelIsKnownWhereOneIsStored) {
  OpenedTrial trial(ThreePoints().SetParam("POINT", sample::TextListParam("LABELS", {"P1"})));
  EXPECT_EQ(GetPointLabelIndex(trial.State(), "  "), 2) << "the second label is missing";
}

TEST(PointDataWithEvents, TagsTheFramesOfTheStrideEvents) {
  OpenedTrial trial(ThreePoints());
  FileState& state = trial.State();
  state.StrideEventFrames.Append({2, GaitSide::Right, GaitEventType::FootOff});
  state.StrideEventFrames.Append({4, GaitSide::Left, GaitEventType::FootStrike});
  state.StrideEventFrameCount = 2;
  const PointSamples samples = GetPointDataWithEventsForLabel(state, "p2");
  EXPECT_EQ(samples[1].EventType, GaitEventType::Other);
  EXPECT_EQ(samples[2].EventType, GaitEventType::FootOff);
  EXPECT_EQ(samples[2].EventSide, GaitSide::Right);
  EXPECT_EQ(samples[4].EventType, GaitEventType::FootStrike);
  EXPECT_EQ(samples[4].EventSide, GaitSide::Left);
  EXPECT_EQ(samples[2].X, Coordinates(2, 2)[0]);
  const AnalogFrames frames = GetAnalogDataWithEventsForLabel(state, "fz");
  EXPECT_EQ(frames[2].EventSide, GaitSide::Right);
  EXPECT_EQ(frames[4].EventType, GaitEventType::FootStrike);
  EXPECT_EQ(frames[3].EventType, GaitEventType::Other);
}

TEST(PointDataWithEvents, OfSeveralEventsOnAFrameTheLastOneStays) {
  OpenedTrial trial(ThreePoints());
  FileState& state = trial.State();
  state.StrideEventFrames.Append({3, GaitSide::Left, GaitEventType::FootStrike});
  state.StrideEventFrames.Append({3, GaitSide::Right, GaitEventType::FootOff});
  state.StrideEventFrameCount = 2;
  EXPECT_EQ(GetPointDataWithEventsForLabel(state, "P1")[3].EventSide, GaitSide::Right);
  EXPECT_EQ(GetPointDataWithEventsForLabel(state, "P1")[3].EventType, GaitEventType::FootOff);
}

TEST(PointDataWithEvents, EventOutsideTheFramesIsAnIndexError) {
  for (const std::int32_t frame : {-1, 0, 5, 2147483647}) {
    OpenedTrial trial(ThreePoints());
    FileState& state = trial.State();
    state.StrideEventFrames.Append({frame, GaitSide::Left, GaitEventType::FootStrike});
    state.StrideEventFrameCount = 1;
    EXPECT_EQ(ErrorNumberOf([&] { GetPointDataWithEventsForLabel(state, "P1"); }),
              kSubscriptOutOfRange)
        << frame;
    EXPECT_EQ(ErrorNumberOf([&] { GetAnalogDataWithEventsForLabel(state, "Fz"); }),
              kSubscriptOutOfRange);
    EXPECT_EQ(GetPointDataForLabel(state, "P1").Count(), 4) << "without events all is well";
    EXPECT_TRUE(GetPointDataWithEventsForLabel(state, "none").IsEmpty());
  }
}

}  // namespace
