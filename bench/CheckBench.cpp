// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "bench/MemoryPeak.h"
#include "gait/Checkup.h"
#include "gait/EventExtraction.h"
#include "sample/SampleWalk.h"

// A checkup costs a few times what reading the file once does, 2 ms more at the most for a clinical
// trial, and no memory that grows with the file.
namespace {

using bench::BenchTrial;

// The sample walk with so many markers more that it has 3 MB, as a clinical trial; one has a gap.
sample::Trial ClinicalTrial() {
  sample::TrialBuilder walk = sample::SampleWalk();
  constexpr int kMarkers = 350;
  for (int i = 1; i <= kMarkers; ++i) {
    std::string label = "M";
    label += std::to_string(i);
    walk.AddPoint(label, [i](std::int32_t frame) {
      return std::array{static_cast<float>(frame), static_cast<float>(i), 1.0F};
    });
  }
  constexpr std::size_t kHidden = 40;
  for (std::int32_t frame = 100; frame < 150; ++frame) walk.NotSeen(kHidden, frame);
  return walk.Build();
}

const BenchTrial& Clinical() {
  static const BenchTrial trial(ClinicalTrial(), BenchTrial::Frames::Written,
                                modVantrel::FindGaitEvents);
  return trial;
}

// 1.9 GB of frames that hold nothing.
const BenchTrial& Large() {
  static const BenchTrial trial(sample::TrialBuilder().Frames(1, 32767).BuildWithoutFrames(7000, 0),
                                BenchTrial::Frames::Hole, modVantrel::FindGaitEvents);
  return trial;
}

void CheckClinicalTrial(benchmark::State& run) {
  const std::string file = Clinical().File().string();
  while (run.KeepRunning()) benchmark::DoNotOptimize(modVantrel::CheckTrial(file));
}

// Reads the whole file in pieces, and looks at every word once.
void ReadClinicalTrial(benchmark::State& run) {
  const std::string path = Clinical().File().string();
  std::vector<std::uint32_t> piece(std::size_t{64} * 1024);
  const auto bytes = std::as_writable_bytes(std::span(piece));
  while (run.KeepRunning()) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    std::uint32_t sum = 0;
    for (::ssize_t got = 1; got > 0;) {
      got = ::read(file, bytes.data(), bytes.size());
      for (std::size_t i = 0; i < static_cast<std::size_t>(got) / sizeof(sum); ++i) sum += piece[i];
    }
    benchmark::DoNotOptimize(sum);
    ::close(file);
  }
}

BENCHMARK(CheckClinicalTrial)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadClinicalTrial)->Repetitions(9)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  const std::string large = Large().File().string();
  const double memory = bench::MemoryRise([&large] { (void)modVantrel::CheckTrial(large); });
  const int status =
      bench::RunWithBudgets(argc, argv, {{"CheckClinicalTrial", "ReadClinicalTrial", 6}});
  return bench::PrintRow("Check of 1.9 GB, MB of memory", "", memory, 20) ? status : 1;
}
