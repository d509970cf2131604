// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "bench/DiscardedReport.h"
#include "bench/SizedTrials.h"
#include "reports/NavigationTree.h"
#include "reports/ParameterReport.h"
#include "sample/TrialBuilder.h"

// How cost grows with the parameters: 10, 100 and 1000 of them in 1, 10 and 100 groups, of which a
// section takes 127 at most.
namespace {

using bench::BenchTrial;
using bench::DiscardedReport;

constexpr int kParamsAGroup = 10;

sample::Trial TrialOfParams(int times) {
  sample::TrialBuilder builder;
  for (int group = 0; group < times; ++group) {
    for (int param = 0; param < kParamsAGroup; ++param) {
      builder.SetParam(fmt::format("GROUP{}", group),
                       sample::IntegerParam(fmt::format("PARAM{}", param), 7));
    }
  }
  return builder.SetParam("LAST", sample::IntegerParam("PARAM", 7)).Build();
}

const BenchTrial& Trial(const benchmark::State& run) {
  static bench::SizedTrials trials(TrialOfParams, BenchTrial::Frames::Written);
  return trials.For(run);
}

void OpenByParams(benchmark::State& run) { bench::OpenAgain(run, Trial(run)); }

void AllGroupsByParams(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) reports::ShowAllGroups(state, output);
}

void AllParamsByParams(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) reports::ShowAllGroupsAndAllParams(state, output);
}

void LastParamByParams(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) {
    (void)reports::ShowMatchingGroupAndMatchingParam(state, "LAST", "PARAM", output);
  }
}

void TreeByParams(benchmark::State& run) {
  const auto& state = Trial(run).State();
  while (run.KeepRunning()) benchmark::DoNotOptimize(reports::FillTree(state));
}

BENCHMARK(OpenByParams)->Apply(bench::InThreeSizes);
BENCHMARK(AllGroupsByParams)->Apply(bench::InThreeSizes);
BENCHMARK(AllParamsByParams)->Apply(bench::InThreeSizes);
BENCHMARK(LastParamByParams)->Apply(bench::InThreeSizes);
BENCHMARK(TreeByParams)->Apply(bench::InThreeSizes);

}  // namespace
