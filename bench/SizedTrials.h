// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>

#include <benchmark/benchmark.h>

#include "bench/BenchTrial.h"
#include "gait/EventExtraction.h"
#include "sample/Trial.h"

namespace bench {

// Trials of 1, 10 and 100 times the work, each made by `make` when it is first asked for.
class SizedTrials {
 public:
  using Make = sample::Trial (*)(int times);

  SizedTrials(Make make, BenchTrial::Frames frames) : make_(make), frames_(frames) {}

  const BenchTrial& For(const benchmark::State& run) {
    const auto times = static_cast<int>(run.range(0));
    const auto found = trials_.find(times);
    if (found != trials_.end()) return found->second;
    return trials_.try_emplace(times, make_(times), frames_, modVantrel::FindGaitEvents)
        .first->second;
  }

 private:
  Make make_;
  BenchTrial::Frames frames_;
  std::map<int, BenchTrial> trials_;
};

// An open of the trial with the event steps, again and again.
inline void OpenAgain(benchmark::State& run, const BenchTrial& trial) {
  const std::string path = trial.File().string();
  while (run.KeepRunning()) {
    modVantrel::FileState state;
    benchmark::DoNotOptimize(modVantrel::OpenC3dFile(state, path, modVantrel::FindGaitEvents));
  }
}

// A benchmark of 1, 10 and 100 times the work, in nanoseconds.
inline void InThreeSizes(benchmark::internal::Benchmark* sized) {
  constexpr double kSecondsATime = 0.1;
  sized->Arg(1)->Arg(10)->Arg(100)->Repetitions(5)->MinTime(kSecondsATime);
}

}  // namespace bench
