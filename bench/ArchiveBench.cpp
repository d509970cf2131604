// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/resource.h>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "bench/ClinicalTrial.h"
#include "gait/EventExtraction.h"

// The tool's measures of an archive of 10,000 trials of 2 MB as csv, with one job and with two,
// against `cat` of the same files. They are one file under many names, so that what is measured is
// work and not a disk.
namespace {

namespace fs = std::filesystem;
using bench::BenchTrial;
using Clock = std::chrono::steady_clock;

constexpr int kTrials = 10'000;
constexpr int kTrialsInAFolder = 100;
constexpr const char* kSeconds = "seconds";
constexpr const char* kMegabytes = "MB";

class Archive {
 public:
  Archive()
      : trial_(bench::TrialOf2Megabytes(), BenchTrial::Frames::Written,
               modVantrel::FindGaitEvents) {
    for (int i = 0; i < kTrials; ++i) {
      const fs::path folder = fs::path(Path()) / fmt::format("visit{:03}", i / kTrialsInAFolder);
      fs::create_directories(folder);
      fs::create_hard_link(trial_.File(), folder / fmt::format("walk{:05}.c3d", i));
    }
  }

  std::string Path() const { return (trial_.Folder() / "archive").string(); }

 private:
  BenchTrial trial_;
};

const Archive& TheArchive() {
  static const Archive archive;
  return archive;
}

// Runs a command of the shell and hands its wall-clock time on, as seconds and as files a second.
void RunCommand(benchmark::State& run, const std::string& command) {
  while (run.KeepRunning()) {
    const Clock::time_point start = Clock::now();
    if (std::system(command.c_str()) != 0) run.SkipWithError("the command failed");
    const std::chrono::duration<double> taken = Clock::now() - start;
    run.SetIterationTime(taken.count());
    run.counters[kSeconds] = taken.count();
    run.counters["files/s"] = kTrials / taken.count();
  }
}

// The most memory that any command needed so far.
double MostMegabytesOfCommands() {
  rusage usage{};
  ::getrusage(RUSAGE_CHILDREN, &usage);
  constexpr double kKilobytesInAMegabyte = 1000.0;
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): so the system declares it.
  return static_cast<double>(usage.ru_maxrss) * 1.024 / kKilobytesInAMegabyte;
}

void RunTool(benchmark::State& run, int jobs) {
  RunCommand(run, fmt::format("'{}' --recursive --jobs {} --format csv measures '{}' > /dev/null",
                              VANTREL_REPORT, jobs, TheArchive().Path()));
  run.counters[kMegabytes] = MostMegabytesOfCommands();
}

void ArchiveWithOneJob(benchmark::State& run) { RunTool(run, 1); }
void ArchiveWithTwoJobs(benchmark::State& run) { RunTool(run, 2); }
void CatOfTheArchive(benchmark::State& run) {
  RunCommand(run, fmt::format("find '{}' -type f -print0 | xargs -0 cat > /dev/null",
                              TheArchive().Path()));
}

BENCHMARK(ArchiveWithOneJob)->Iterations(1)->Repetitions(3)->UseManualTime();
BENCHMARK(ArchiveWithTwoJobs)->Iterations(1)->Repetitions(3)->UseManualTime();
BENCHMARK(CatOfTheArchive)->Iterations(1)->Repetitions(3)->UseManualTime();

}  // namespace

int main(int argc, char** argv) {
  constexpr double kTwoJobsOfOne = 1 / 1.7;
  return bench::RunWithBudgets(
      argc, argv,
      {{"ArchiveWithOneJob", "CatOfTheArchive", {}, kSeconds},
       {"ArchiveWithOneJob", "", {}, kSeconds},
       {"ArchiveWithTwoJobs", "ArchiveWithOneJob", kTwoJobsOfOne, kSeconds},
       {"ArchiveWithTwoJobs", "", 60, kMegabytes}});
}
