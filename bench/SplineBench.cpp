// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstddef>
#include <cstring>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "c3d/FrameData.h"
#include "gait/CubicSpline.h"
#include "gait/EventExtraction.h"
#include "gait/GcdCalcs.h"
#include "sample/TrialBuilder.h"

// The splines of a label and its normalisation against a copy of the same samples in memory.
namespace {

using bench::BenchTrial;
using modVantrel::Component;
using modVantrel::PointSample;
using modVantrel::PointSamples;

const BenchTrial& Trial() {
  static const BenchTrial trial(sample::TrialBuilder()
                                    .StoredAs(sample::Storage::Single)
                                    .Frames(1, 32767)
                                    .AddPoint("LTOE",
                                              [](std::int32_t frame) {
                                                const auto x = static_cast<float>(frame % 110);
                                                return std::array{x, 0.01F * x * x, -x};
                                              })
                                    .AddEvent("Left", "Foot Strike", 1.0F)
                                    .AddEvent("Right", "Foot Off", 1.1F)
                                    .AddEvent("Right", "Foot Strike", 1.5F)
                                    .AddEvent("Left", "Foot Off", 1.6F)
                                    .AddEvent("Left", "Foot Strike", 2.1F)
                                    .Build(),
                                BenchTrial::Frames::Written, modVantrel::FindGaitEvents);
  return trial;
}

const PointSamples& Samples() {
  static const PointSamples samples = modVantrel::GetPointDataForLabel(Trial().State(), "LTOE");
  return samples;
}

void CopySamples(benchmark::State& run) {
  const auto count = static_cast<std::size_t>(Samples().Count());
  std::vector<PointSample> copy(count);
  while (run.KeepRunning()) {
    std::memcpy(copy.data(), &*Samples().begin(), count * sizeof(PointSample));
    benchmark::DoNotOptimize(copy.data());
    benchmark::ClobberMemory();
  }
}

void ReadLabel(benchmark::State& run) {
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(modVantrel::GetPointDataForLabel(Trial().State(), "LTOE"));
  }
}

void BuildThreeSplines(benchmark::State& run) {
  while (run.KeepRunning()) {
    for (const Component component : {Component::X, Component::Y, Component::Z}) {
      benchmark::DoNotOptimize(
          modCubicSpline::BuildComponentSpline(Samples(), Samples().Count(), component));
    }
  }
}

// As a report of one stride does it: reads the label, builds its splines, takes 51 points.
void NormalizeFirstStride(benchmark::State& run) {
  while (run.KeepRunning()) {
    modVantrel::clsGcdCalcs calcs(Trial().State());
    benchmark::DoNotOptimize(calcs.NormalizeLabelForStride("LTOE", 1));
  }
}

// The label's splines are there already.
void NormalizeAnotherStride(benchmark::State& run) {
  modVantrel::clsGcdCalcs calcs(Trial().State());
  while (run.KeepRunning()) benchmark::DoNotOptimize(calcs.NormalizeLabelForStride("LTOE", 1));
}

BENCHMARK(CopySamples)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadLabel)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(BuildThreeSplines)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(NormalizeFirstStride)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(NormalizeAnotherStride)->Repetitions(9)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  return bench::RunWithBudgets(argc, argv,
                               {{"ReadLabel", "CopySamples", {}},
                                {"BuildThreeSplines", "CopySamples", {}},
                                {"NormalizeFirstStride", "CopySamples", {}},
                                {"NormalizeAnotherStride", "CopySamples", {}}});
}
