// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "bench/OverwriteAll.h"
#include "bench/WalkOfStrides.h"
#include "c3d/FrameData.h"
#include "gait/EventExtraction.h"
#include "gait/GcdCommand.h"

// The GCD command over 1, 5 and 20 strides of one long trial: what it reads grows with the labels,
// not with the strides.
namespace {

using bench::BenchTrial;

constexpr const char* kBytesRead = "bytes_read";

const BenchTrial& Walk(int strides) {
  static const BenchTrial one(bench::WalkOfStrides(1), BenchTrial::Frames::Written,
                              modVantrel::FindGaitEvents);
  static const BenchTrial five(bench::WalkOfStrides(5), BenchTrial::Frames::Written,
                               modVantrel::FindGaitEvents);
  static const BenchTrial twenty(bench::WalkOfStrides(20), BenchTrial::Frames::Written,
                                 modVantrel::FindGaitEvents);
  return strides == 1 ? one : strides == 5 ? five : twenty;
}

// Bytes that this process has read since it started.
double BytesReadSoFar() {
  std::ifstream file("/proc/self/io");
  std::string name;
  double bytes = 0;
  file >> name >> bytes;
  return bytes;
}

void WriteGcdFiles(benchmark::State& run, int strides) {
  const BenchTrial& walk = Walk(strides);
  if (walk.State().GaitEvents.ValidStrideCount != strides) {
    run.SkipWithError("the trial has another number of strides");
    return;
  }
  bench::OverwriteAll question;
  const double before = BytesReadSoFar();
  while (run.KeepRunning()) {
    modAllPurpose::TextReport output;
    (void)modVantrel::WriteGcdFiles(walk.State(), {}, question, output);
    benchmark::DoNotOptimize(output.Text().data());
  }
  run.counters[kBytesRead] =
      benchmark::Counter(BytesReadSoFar() - before, benchmark::Counter::kAvgIterations);
}

void OneStride(benchmark::State& run) { WriteGcdFiles(run, 1); }
void FiveStrides(benchmark::State& run) { WriteGcdFiles(run, 5); }
void TwentyStrides(benchmark::State& run) { WriteGcdFiles(run, 20); }

// Every label of the same trial once, and nothing else.
void ReadEveryLabel(benchmark::State& run) {
  const auto& state = Walk(20).State();
  while (run.KeepRunning()) {
    for (std::int32_t label = 1; label <= state.Header.PointLabelCount; ++label) {
      benchmark::DoNotOptimize(modVantrel::ReadPointDataForIndex(state, label));
    }
  }
}

BENCHMARK(ReadEveryLabel)->Repetitions(5)->Unit(benchmark::kMillisecond);
BENCHMARK(OneStride)->Repetitions(5)->Unit(benchmark::kMillisecond);
BENCHMARK(FiveStrides)->Repetitions(5)->Unit(benchmark::kMillisecond);
BENCHMARK(TwentyStrides)->Repetitions(5)->Unit(benchmark::kMillisecond);

}  // namespace

// Two strides have the labels of both feet, so from one stride to several the labels double; from
// then on nothing more is read.
int main(int argc, char** argv) {
  return bench::RunWithBudgets(argc, argv,
                               {{"FiveStrides", "OneStride", 2.05, kBytesRead},
                                {"TwentyStrides", "FiveStrides", 1.01, kBytesRead},
                                {"TwentyStrides", "FiveStrides", 2.0},
                                {"TwentyStrides", "ReadEveryLabel", {}}});
}
