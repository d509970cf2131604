// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <string>

#include <benchmark/benchmark.h>

#include "bench/DiscardedReport.h"
#include "bench/SizedTrials.h"
#include "c3d/FrameData.h"
#include "gait/CubicSpline.h"
#include "reports/ListingReport.h"
#include "reports/MeasuresReport.h"
#include "reports/NormalizedReport.h"
#include "sample/TrialBuilder.h"

// How cost grows with the frames: 320, 3200 and 32000 of them, one stride in their first seconds.
namespace {

using bench::BenchTrial;
using bench::DiscardedReport;

constexpr int kFrames = 320;

sample::PointCurve Line(float slope) {
  return [slope](std::int32_t frame) {
    const auto x = static_cast<float>(frame);
    return std::array{slope * x, 100 - x, slope};
  };
}

sample::Trial TrialOfFrames(int times) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, static_cast<std::int16_t>(kFrames * times));
  builder.AddPoint("LTOE", Line(1)).AddPoint("RTOE", Line(2)).AddPoint("LKneeAngles", Line(3));
  builder.SamplesPerFrame(10);
  for (const std::string channel : {"Fx", "Fy", "Fz"}) {
    builder.AddAnalog(channel, "", [](std::int32_t k) { return static_cast<float>(k % 1000); });
  }
  return builder.AddEvent("Left", "Foot Strike", 0.5F)
      .AddEvent("Right", "Foot Off", 0.6F)
      .AddEvent("Right", "Foot Strike", 1.0F)
      .AddEvent("Left", "Foot Off", 1.1F)
      .AddEvent("Left", "Foot Strike", 1.6F)
      .Build();
}

const BenchTrial& Trial(const benchmark::State& run) {
  static bench::SizedTrials trials(TrialOfFrames, BenchTrial::Frames::Written);
  return trials.For(run);
}

void OpenByFrames(benchmark::State& run) { bench::OpenAgain(run, Trial(run)); }

void PointByFrames(benchmark::State& run) {
  const auto& state = Trial(run).State();
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(modVantrel::GetPointDataForLabel(state, "RTOE"));
  }
}

void ChannelByFrames(benchmark::State& run) {
  const auto& state = Trial(run).State();
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(modVantrel::GetAnalogDataForLabel(state, "Fy"));
  }
}

void PointListingByFrames(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) (void)reports::ShowPointDataWithEvents(state, "RTOE", output);
}

void ChannelListingByFrames(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) (void)reports::ShowAnalogDataWithEvents(state, "Fy", output);
}

void SplineByFrames(benchmark::State& run) {
  const auto samples = modVantrel::GetPointDataForLabel(Trial(run).State(), "RTOE");
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(
        modCubicSpline::BuildComponentSpline(samples, samples.Count(), modVantrel::Component::X));
  }
}

void NormalizedByFrames(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) (void)reports::ShowNormalized(state, "LKneeAngles", output);
}

void MeasuresByFrames(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) reports::ShowSingleValueStrikeOffMeasures(state, output);
}

BENCHMARK(OpenByFrames)->Apply(bench::InThreeSizes);
BENCHMARK(PointByFrames)->Apply(bench::InThreeSizes);
BENCHMARK(ChannelByFrames)->Apply(bench::InThreeSizes);
BENCHMARK(PointListingByFrames)->Apply(bench::InThreeSizes);
BENCHMARK(ChannelListingByFrames)->Apply(bench::InThreeSizes);
BENCHMARK(SplineByFrames)->Apply(bench::InThreeSizes);
BENCHMARK(NormalizedByFrames)->Apply(bench::InThreeSizes);
BENCHMARK(MeasuresByFrames)->Apply(bench::InThreeSizes);

}  // namespace
