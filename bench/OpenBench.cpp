// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "bench/MemoryPeak.h"
#include "c3d/OpenC3dFile.h"
#include "sample/SampleWalk.h"
#include "sample/TrialBuilder.h"

// An open costs the same however many frames the file has, and little more than the blocks that it
// reads.
namespace {

using bench::BenchTrial;
using modVantrel::FileState;

constexpr std::int16_t kPoints = 7000;
constexpr std::int16_t kAnalogValues = 1000;

BenchTrial TrialOf(std::int16_t frames) {
  return {sample::TrialBuilder()
              .Frames(1, frames)
              .AddAnalog("FZ1", "force", [](std::int32_t /*sample*/) { return 0.0F; })
              .BuildWithoutFrames(kPoints, kAnalogValues),
          BenchTrial::Frames::Hole, [](FileState& /*state*/) {}};
}

const BenchTrial& SmallTrial() {
  static const BenchTrial trial = TrialOf(10);
  return trial;
}

// 1.9 GB, the same points and parameters.
const BenchTrial& LargeTrial() {
  static const BenchTrial trial = TrialOf(32767);
  return trial;
}

const BenchTrial& Walk() {
  static const BenchTrial trial(sample::SampleWalk().Build(), BenchTrial::Frames::Written,
                                [](FileState& /*state*/) {});
  return trial;
}

void Open(benchmark::State& run, const BenchTrial& trial) {
  while (run.KeepRunning()) {
    FileState state;
    const auto result = modVantrel::OpenC3dFile(state, trial.File().string(), [](FileState&) {});
    if (result != modVantrel::OpenResult::Success) run.SkipWithError("did not open");
  }
}

// Opens the file and reads its header and its parameter section, in one piece.
void ReadBlocks(benchmark::State& run, const BenchTrial& trial) {
  std::vector<std::byte> blocks(
      static_cast<std::size_t>(trial.State().SeekPtrForFirstFrameData - 1));
  const std::string path = trial.File().string();
  while (run.KeepRunning()) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    benchmark::DoNotOptimize(::pread(file, blocks.data(), blocks.size(), 0));
    ::close(file);
  }
}

void OpenTrialOf10Frames(benchmark::State& run) { Open(run, SmallTrial()); }
void OpenTrialOf32767Frames(benchmark::State& run) { Open(run, LargeTrial()); }
void OpenSampleWalk(benchmark::State& run) { Open(run, Walk()); }
void ReadBlocksOfSampleWalk(benchmark::State& run) { ReadBlocks(run, Walk()); }

BENCHMARK(OpenTrialOf10Frames)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(OpenTrialOf32767Frames)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(OpenSampleWalk)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadBlocksOfSampleWalk)->Repetitions(9)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  const std::string large = LargeTrial().File().string();
  const double memory = bench::MemoryRise([&large] {
    modVantrel::FileState state;
    (void)modVantrel::OpenC3dFile(state, large, [](FileState&) {});
  });
  const int status = bench::RunWithBudgets(argc, argv,
                                           {{"OpenTrialOf32767Frames", "OpenTrialOf10Frames", 1.2},
                                            {"OpenSampleWalk", "ReadBlocksOfSampleWalk", {}}});
  return bench::PrintRow("Open of 1.9 GB, MB of memory", "", memory, 2) ? status : 1;
}
