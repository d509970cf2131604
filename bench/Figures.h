// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include <benchmark/benchmark.h>

namespace bench {

// Processor time, the system's share included; every other figure is a counter of that name.
inline constexpr const char* kTime = "";

// The least of each figure over the repetitions of a benchmark; the least is what the others on
// this machine disturbed least.
class Figures : public benchmark::ConsoleReporter {
 public:
  Figures() : ConsoleReporter(OO_None) {}

  void ReportRuns(const std::vector<Run>& runs) override;

  // The figure of `benchmark` with the arguments `args` ("10"; empty for none); not a number where
  // it was not measured.
  double Least(const std::string& benchmark, const std::string& figure,
               const std::string& args = {}) const;

  bool HasFailures() const { return hasFailures_; }

 private:
  void Keep(const Run& run, const std::string& figure, double value);

  std::map<std::tuple<std::string, std::string, std::string>, double> least_;
  bool hasFailures_ = false;
};

// Runs the registered benchmarks in an order that mixes their repetitions, so that a disturbance
// hits all sides of a ratio, and keeps freed memory with the process, so that a side is not
// measured by the pages that the system takes and gives again. False for a wrong command line.
bool RunBenchmarks(int argc, char** argv, Figures& figures);

}  // namespace bench
