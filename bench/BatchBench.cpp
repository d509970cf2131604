// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "bench/ClinicalTrial.h"
#include "gait/EventExtraction.h"

// The tool's measures of 1,000 copies of a trial of 2 MB, by one process and by two, against a bare
// loop that reads the copies once.
namespace {

namespace fs = std::filesystem;
using bench::BenchTrial;
using Clock = std::chrono::steady_clock;

constexpr int kCopies = 1000;
constexpr int kCopiesATurn = 125;  // of one of two processes
constexpr const char* kSeconds = "seconds";

// The copies, and a list of their names, each ended by a zero byte.
class Copies {
 public:
  Copies()
      : trial_(bench::TrialOf2Megabytes(), BenchTrial::Frames::Written,
               modVantrel::FindGaitEvents) {
    std::ofstream list(List(), std::ios::binary);
    for (int i = 0; i < kCopies; ++i) {
      files_.push_back((trial_.Folder() / fmt::format("{}.c3d", i)).string());
      fs::copy_file(trial_.File(), files_.back());
      list << files_.back() << '\0';
    }
  }

  const std::vector<std::string>& Files() const { return files_; }
  std::size_t FileSize() const { return fs::file_size(trial_.File()); }
  fs::path List() const { return trial_.Folder() / "list"; }

 private:
  BenchTrial trial_;
  std::vector<std::string> files_;
};

const Copies& AllCopies() {
  static const Copies copies;
  return copies;
}

// Hands the wall-clock time of `work` on, as seconds and as files a second.
template <typename Work>
void Measure(benchmark::State& run, const Work& work) {
  (void)AllCopies();
  while (run.KeepRunning()) {
    const Clock::time_point start = Clock::now();
    work();
    const std::chrono::duration<double> taken = Clock::now() - start;
    run.SetIterationTime(taken.count());
    run.counters[kSeconds] = taken.count();
    run.counters["files/s"] = kCopies / taken.count();
  }
}

void RunTool(benchmark::State& run, int processes, int copiesATurn, const char* format = "text") {
  const std::string command =
      fmt::format("xargs -0 -P {} -n {} -a '{}' '{}' --format {} measures > /dev/null", processes,
                  copiesATurn, AllCopies().List().string(), VANTREL_REPORT, format);
  Measure(run, [&] {
    if (std::system(command.c_str()) != 0) run.SkipWithError("the tool failed");
  });
}

void MeasuresByOneProcess(benchmark::State& run) { RunTool(run, 1, kCopies); }
void MeasuresByTwoProcesses(benchmark::State& run) { RunTool(run, 2, kCopiesATurn); }
void MeasuresAsCsv(benchmark::State& run) { RunTool(run, 1, kCopies, "csv"); }
void MeasuresAsJson(benchmark::State& run) { RunTool(run, 1, kCopies, "json"); }

void ReadAllCopies(benchmark::State& run) {
  constexpr std::size_t kPieceSize = std::size_t{256} * 1024;
  std::vector<std::byte> piece(kPieceSize);
  Measure(run, [&] {
    for (const std::string& name : AllCopies().Files()) {
      const int file = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
      while (::read(file, piece.data(), piece.size()) > 0) benchmark::DoNotOptimize(piece.data());
      ::close(file);
    }
  });
}

BENCHMARK(MeasuresByOneProcess)->Iterations(1)->Repetitions(5)->UseManualTime();
BENCHMARK(MeasuresByTwoProcesses)->Iterations(1)->Repetitions(5)->UseManualTime();
BENCHMARK(MeasuresAsCsv)->Iterations(1)->Repetitions(5)->UseManualTime();
BENCHMARK(MeasuresAsJson)->Iterations(1)->Repetitions(5)->UseManualTime();
BENCHMARK(ReadAllCopies)->Iterations(1)->Repetitions(5)->UseManualTime();

}  // namespace

int main(int argc, char** argv) {
  return bench::RunWithBudgets(argc, argv,
                               {{"MeasuresByOneProcess", "ReadAllCopies", {}, kSeconds},
                                {"MeasuresByTwoProcesses", "MeasuresByOneProcess", {}, kSeconds},
                                {"MeasuresByOneProcess", "", {}, kSeconds},
                                {"MeasuresAsCsv", "MeasuresByOneProcess", 1.1, kSeconds},
                                {"MeasuresAsJson", "MeasuresByOneProcess", {}, kSeconds}});
}
