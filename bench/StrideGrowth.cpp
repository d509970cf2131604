// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <benchmark/benchmark.h>

#include "bench/DiscardedReport.h"
#include "bench/OverwriteAll.h"
#include "bench/SizedTrials.h"
#include "bench/WalkOfStrides.h"
#include "gait/GcdCommand.h"
#include "reports/MeasuresReport.h"
#include "reports/NormalizedReport.h"
#include "reports/StrikeOffReport.h"

// How cost grows with the strides: 1, 10 and 100 in trials of the same frames. A hundred have 204
// events, an EVENT group holds 255.
namespace {

using bench::BenchTrial;
using bench::DiscardedReport;

const BenchTrial& Trial(const benchmark::State& run) {
  static bench::SizedTrials trials(bench::WalkOfStrides, BenchTrial::Frames::Written);
  return trials.For(run);
}

void OpenByStrides(benchmark::State& run) { bench::OpenAgain(run, Trial(run)); }

void EventsByStrides(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) reports::ShowStrikeOffEvents(state, output);
}

void MeasuresByStrides(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) reports::ShowSingleValueStrikeOffMeasures(state, output);
}

void NormalizedByStrides(benchmark::State& run) {
  const auto& state = Trial(run).State();
  DiscardedReport output;
  while (run.KeepRunning()) (void)reports::ShowNormalized(state, "LTOE", output);
}

void GcdByStrides(benchmark::State& run) {
  const auto& state = Trial(run).State();
  bench::OverwriteAll question;
  DiscardedReport output;
  while (run.KeepRunning()) (void)modVantrel::WriteGcdFiles(state, {}, question, output);
}

BENCHMARK(OpenByStrides)->Apply(bench::InThreeSizes);
BENCHMARK(EventsByStrides)->Apply(bench::InThreeSizes);
BENCHMARK(MeasuresByStrides)->Apply(bench::InThreeSizes);
BENCHMARK(NormalizedByStrides)->Apply(bench::InThreeSizes);
BENCHMARK(GcdByStrides)->Apply(bench::InThreeSizes);

}  // namespace
