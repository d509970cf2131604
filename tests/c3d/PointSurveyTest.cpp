// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cmath>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "c3d/PointSurvey.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::FrameRange;
using modVantrel::SurveyPoints;
using testing::ElementsAre;
using testing::IsEmpty;

// Three points of ten frames; the second is not seen in 2 and 3, in 5 and in 10.
sample::TrialBuilder TrialWithGaps() {
  sample::TrialBuilder builder;
  for (const char* label : {"A", "B", "C"}) {
    builder.AddPoint(label, [](std::int32_t frame) {
      return std::array{static_cast<float>(frame), 2.0F, 3.0F};
    });
  }
  for (const std::int32_t frame : {2, 3, 5, 10}) builder.NotSeen(2, frame);
  return builder.AddAnalog("F", "Force", [](std::int32_t) { return 0.0F; });
}

TEST(PointSurvey, FindsTheGapsOfThePointsAskedFor) {
  for (const std::uint8_t processor : {modVantrel::kProcessorIntel, modVantrel::kProcessorDec}) {
    for (const auto storage : {sample::Storage::Integer, sample::Storage::Single}) {
      auto builder = TrialWithGaps();
      tests::OpenedTrial trial(builder.Processor(processor).StoredAs(storage));
      const std::array<std::int32_t, 2> points = {3, 2};
      const auto survey = SurveyPoints(trial.State(), points, {});
      EXPECT_EQ(survey.FrameCount, 10);
      ASSERT_EQ(survey.Points.size(), 2U);
      EXPECT_EQ(survey.Points[0].Index, 3);
      EXPECT_EQ(survey.Points[0].UnseenCount, 0);
      EXPECT_THAT(survey.Points[0].Gaps, IsEmpty());
      EXPECT_EQ(survey.Points[1].UnseenCount, 4);
      EXPECT_EQ(survey.Points[1].Longest, (FrameRange{2, 3}));
      EXPECT_THAT(survey.Points[1].Gaps,
                  ElementsAre(FrameRange{2, 3}, FrameRange{5, 5}, FrameRange{10, 10}));
    }
  }
}

TEST(PointSurvey, KeepsTheSamplesThatALabelHas) {
  auto builder = TrialWithGaps();
  tests::OpenedTrial trial(builder.Frames(31, 40));
  const std::array<std::int32_t, 1> kept = {2};
  const auto survey = SurveyPoints(trial.State(), {}, kept);
  const auto samples = ReadPointDataForIndex(trial.State(), 2);
  ASSERT_EQ(survey.Samples.at(0).Count(), samples.Count());
  for (std::int32_t i = 1; i <= samples.Count(); ++i) {
    EXPECT_EQ(survey.Samples[0][i].X, samples[i].X);
    EXPECT_EQ(survey.Samples[0][i].Z, samples[i].Z);
    EXPECT_EQ(survey.Samples[0][i].Time, samples[i].Time);
    EXPECT_EQ(survey.Samples[0][i].IsSeen(), samples[i].IsSeen());
  }
}

TEST(PointSurvey, ReadsWholeFramesAlone) {
  auto trial = TrialWithGaps().Build();
  constexpr std::size_t kFrameSize = (3 * 4 + 1) * 2;
  trial.TruncateTo(static_cast<std::size_t>(trial.FrameDataPosition()) - 1 + 5 * kFrameSize + 25);
  tests::OpenedTrial opened(trial);
  EXPECT_EQ(WholeFrameCount(opened.State()), 5);
  const std::array<std::int32_t, 1> points = {2};
  const auto survey = SurveyPoints(opened.State(), points, {});
  EXPECT_EQ(survey.FrameCount, 5);
  EXPECT_EQ(survey.Points[0].UnseenCount, 3);
}

TEST(PointSurvey, OfCountsThatContradictEachOtherReadsNothing) {
  auto trial = TrialWithGaps().Build();
  trial.SetInteger(tests::header::kAnalogValuesPerFrame, -3);
  tests::OpenedTrial opened(trial);
  EXPECT_EQ(WholeFrameCount(opened.State()), 0);
}

}  // namespace
