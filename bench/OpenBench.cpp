// An open must cost the same however many frames the file has. Both trials have the same points and
// parameters; one holds 10 frames, the other 32767 of them, 1.9 GB. The program fails where the
// large one costs more than kMostRatio times the small one, or more memory.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <random>
#include <string>
#include <system_error>
#include <utility>

#include <benchmark/benchmark.h>

#include "c3d/OpenC3dFile.h"
#include "sample/TrialBuilder.h"

namespace {

namespace fs = std::filesystem;

constexpr double kMostRatio = 1.5;
constexpr double kMostExtraMegabytes = 2;
constexpr std::int16_t kPoints = 7000;
constexpr std::int16_t kAnalogValues = 1000;
constexpr std::int16_t kMostFrames = 32767;

// The peak of this process's resident memory so far.
double PeakMegabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
  }
  return std::numeric_limits<double>::quiet_NaN();
}

// A folder for the trials, removed at the end of the process.
class Folder {
 public:
  Folder() { fs::create_directory(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  fs::path operator/(const std::string& name) const { return path_ / name; }

 private:
  fs::path path_ =
      fs::temp_directory_path() / ("vantrel-bench-" + std::to_string(std::random_device()()));
};

// One trial on disk, written sparse, and what opening it cost.
struct Opening {
  fs::path File;
  double BestSeconds = std::numeric_limits<double>::infinity();
  double Megabytes = 0;

  Opening(fs::path file, std::int16_t frames) : File(std::move(file)) {
    sample::TrialBuilder()
        .Frames(1, frames)
        .AddAnalog("FZ1", "force", [](std::int32_t /*sample*/) { return 0.0F; })
        .BuildWithoutFrames(kPoints, kAnalogValues)
        .WriteSparseTo(File);
  }

  void Run(benchmark::State& benchmarkState) {
    while (benchmarkState.KeepRunning()) {
      const auto start = std::chrono::steady_clock::now();
      modVantrel::FileState state;
      const auto result =
          modVantrel::OpenC3dFile(state, File.string(), [](modVantrel::FileState&) {});
      const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
      benchmarkState.SetIterationTime(taken.count());
      BestSeconds = std::min(BestSeconds, taken.count());
      if (result != modVantrel::OpenResult::Success) benchmarkState.SkipWithError("did not open");
    }
    Megabytes = PeakMegabytes();
    benchmarkState.counters["file_MB"] = static_cast<double>(fs::file_size(File)) / 1e6;
    benchmarkState.counters["VmHWM_MB"] = Megabytes;
  }
};

const Folder& Trials() {
  static const Folder folder;
  return folder;
}

Opening& Small() {
  static Opening opening(Trials() / "small.c3d", 10);
  return opening;
}

Opening& Large() {
  static Opening opening(Trials() / "large.c3d", kMostFrames);
  return opening;
}

void OpenTrialOf10Frames(benchmark::State& state) { Small().Run(state); }
BENCHMARK(OpenTrialOf10Frames)->UseManualTime()->Unit(benchmark::kMicrosecond);

void OpenTrialOf32767Frames(benchmark::State& state) { Large().Run(state); }
BENCHMARK(OpenTrialOf32767Frames)->UseManualTime()->Unit(benchmark::kMicrosecond);

// Prints the comparison; true where both bounds are held.
bool IsWithinBounds(const Opening& small, const Opening& large) {
  const double ratio = large.BestSeconds / small.BestSeconds;
  const double extra = large.Megabytes - small.Megabytes;
  std::printf("large / small, best of each: %.2f (at most %.2f)\n", ratio, kMostRatio);
  std::printf("memory beyond the small one: %.2f MB (at most %.2f)\n", extra, kMostExtraMegabytes);
  return ratio <= kMostRatio && extra <= kMostExtraMegabytes;
}

}  // namespace

int main(int argc, char* argv[]) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  benchmark::RunSpecifiedBenchmarks();
  return IsWithinBounds(Small(), Large()) ? EXIT_SUCCESS : EXIT_FAILURE;
}
