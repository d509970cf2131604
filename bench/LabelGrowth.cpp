// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "bench/DiscardedReport.h"
#include "bench/SizedTrials.h"
#include "c3d/FrameData.h"
#include "reports/ListingReport.h"
#include "sample/TrialBuilder.h"

// How cost grows with the labels: 30, 300 and 3000 points. A parameter holds the names of 255 at
// most; the others have none, as in any file.
namespace {

using bench::BenchTrial;

constexpr int kPoints = 30;
constexpr int kMostNames = 255;

sample::Trial TrialOfLabels(int times) {
  std::vector<std::string> names;
  for (int i = 1; i <= std::min(kPoints * times, kMostNames); ++i) {
    names.push_back(fmt::format("POINT{}", i));
  }
  return sample::TrialBuilder()
      .StoredAs(sample::Storage::Single)
      .Frames(1, 1000)
      .SetParam("POINT", sample::TextListParam("LABELS", names))
      .BuildWithoutFrames(static_cast<std::int16_t>(kPoints * times));
}

const BenchTrial& Trial(const benchmark::State& run) {
  static bench::SizedTrials trials(TrialOfLabels, BenchTrial::Frames::Hole);
  return trials.For(run);
}

void OpenByLabels(benchmark::State& run) { bench::OpenAgain(run, Trial(run)); }

void LabelListByLabels(benchmark::State& run) {
  const auto& state = Trial(run).State();
  bench::DiscardedReport output;
  while (run.KeepRunning()) reports::ShowPointLabels(state, output);
}

void SearchByLabels(benchmark::State& run) {
  const auto& state = Trial(run).State();
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(modVantrel::GetPointLabelIndex(state, "missing"));
  }
}

void LastPointByLabels(benchmark::State& run) {
  const auto& state = Trial(run).State();
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(
        modVantrel::ReadPointDataForIndex(state, state.Header.PointLabelCount));
  }
}

BENCHMARK(OpenByLabels)->Apply(bench::InThreeSizes);
BENCHMARK(LabelListByLabels)->Apply(bench::InThreeSizes);
BENCHMARK(SearchByLabels)->Apply(bench::InThreeSizes);
BENCHMARK(LastPointByLabels)->Apply(bench::InThreeSizes);

}  // namespace
