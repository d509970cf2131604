// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/Figures.h"

#include <limits>
#include <malloc.h>
#include <utility>

namespace bench {

namespace {

void KeepFreedMemory() {
  constexpr int kNever = 1 << 30;
  ::mallopt(M_MMAP_THRESHOLD, kNever);
  ::mallopt(M_TRIM_THRESHOLD, kNever);
}

}  // namespace

void Figures::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.error_occurred) hasFailures_ = true;
    if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
    Keep(run, kTime, run.GetAdjustedCPUTime());
    for (const auto& [name, counter] : run.counters) Keep(run, name, counter.value);
  }
  ConsoleReporter::ReportRuns(runs);
}

double Figures::Least(const std::string& benchmark, const std::string& figure,
                      const std::string& args) const {
  const auto found = least_.find({benchmark, args, figure});
  return found == least_.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
}

void Figures::Keep(const Run& run, const std::string& figure, double value) {
  const auto [place, isNew] =
      least_.try_emplace({run.run_name.function_name, run.run_name.args, figure}, value);
  if (!isNew && value < place->second) place->second = value;
}

bool RunBenchmarks(int argc, char** argv, Figures& figures) {
  KeepFreedMemory();
  std::string mixed = "--benchmark_enable_random_interleaving=true";
  std::vector<char*> arguments(argv, argv + argc);
  arguments.insert(arguments.begin() + 1, mixed.data());
  auto count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return false;
  benchmark::RunSpecifiedBenchmarks(&figures);
  return true;
}

}  // namespace bench
