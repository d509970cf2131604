// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "bench/MemoryPeak.h"
#include "c3d/FrameData.h"
#include "sample/TrialBuilder.h"

// One label of a large file against a bare loop of system calls over the same bytes.
namespace {

using bench::BenchTrial;
using modVantrel::FileState;

constexpr std::int32_t kLabel = 20;
constexpr std::int32_t kChannel = 3;
constexpr std::int16_t kSamples = 10;
constexpr std::size_t kPieceSize = std::size_t{256} * 1024;
constexpr std::size_t kPointSize = 16;

// 32767 frames of that many points and analog values as floats, the data a hole in the file.
sample::Trial LargeTrial(std::int16_t points, std::int16_t analogValues) {
  return sample::TrialBuilder()
      .StoredAs(sample::Storage::Single)
      .Frames(1, 32767)
      .SamplesPerFrame(kSamples)
      .BuildWithoutFrames(points, analogValues);
}

// Frames of 648 bytes: 20 MB in all.
const BenchTrial& SmallFrames() {
  static const BenchTrial trial(LargeTrial(28, 50), BenchTrial::Frames::Hole,
                                [](FileState& /*state*/) {});
  return trial;
}

// Frames of 64000 bytes: close to the 2 GiB that positions reach.
const BenchTrial& LargeFrames() {
  static const BenchTrial trial(LargeTrial(3000, 4000), BenchTrial::Frames::Hole,
                                [](FileState& /*state*/) {});
  return trial;
}

void ReadLabel(benchmark::State& run, const BenchTrial& trial) {
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(modVantrel::ReadPointDataForIndex(trial.State(), kLabel));
  }
}

struct Point {
  float X;
  float Y;
  float Z;
};

std::size_t FrameSize(const FileState& state) {
  return static_cast<std::size_t>(state.Header.PointLabelCount) * kPointSize +
         static_cast<std::size_t>(state.Header.AnalogValuesPerFrame) * 4;
}

off_t LabelOffset(const FileState& state) {
  return state.SeekPtrForFirstFrameData - 1 + (kLabel - 1) * off_t{kPointSize};
}

// Reads the whole data section in pieces and takes the label out of each frame.
void BareLoopOverPieces(benchmark::State& run, const BenchTrial& trial) {
  const std::size_t frameSize = FrameSize(trial.State());
  const std::size_t framesPerPiece = kPieceSize / frameSize;
  const auto frames = static_cast<std::size_t>(trial.State().PointFrameCount);
  const int file = ::open(trial.File().c_str(), O_RDONLY);
  std::vector<std::byte> piece(framesPerPiece * frameSize);
  while (run.KeepRunning()) {
    std::vector<Point> points(frames);
    for (std::size_t first = 0; first < frames; first += framesPerPiece) {
      const std::size_t count = std::min(framesPerPiece, frames - first);
      const auto offset = LabelOffset(trial.State()) + static_cast<off_t>(first * frameSize);
      benchmark::DoNotOptimize(::pread(file, piece.data(), count * frameSize, offset));
      for (std::size_t i = 0; i < count; ++i) {
        std::memcpy(&points[first + i], piece.data() + i * frameSize, sizeof(Point));
      }
    }
    benchmark::DoNotOptimize(points.data());
  }
  ::close(file);
}

// Reads the whole data section in pieces and takes the channel's samples out of each frame.
void BareLoopOverSamples(benchmark::State& run, const BenchTrial& trial) {
  const std::size_t frameSize = FrameSize(trial.State());
  const std::size_t framesPerPiece = kPieceSize / frameSize;
  const auto frames = static_cast<std::size_t>(trial.State().PointFrameCount);
  const std::size_t step = static_cast<std::size_t>(trial.State().AnalogChannelsCount) * 4;
  const off_t channelOffset = trial.State().SeekPtrForFirstFrameData - 1 +
                              trial.State().Header.PointLabelCount * off_t{kPointSize} +
                              (kChannel - 1) * off_t{4};
  const int file = ::open(trial.File().c_str(), O_RDONLY);
  std::vector<std::byte> piece(framesPerPiece * frameSize);
  while (run.KeepRunning()) {
    std::vector<float> values(frames * kSamples);
    for (std::size_t first = 0; first < frames; first += framesPerPiece) {
      const std::size_t count = std::min(framesPerPiece, frames - first);
      const auto offset = channelOffset + static_cast<off_t>(first * frameSize);
      benchmark::DoNotOptimize(::pread(file, piece.data(), count * frameSize, offset));
      for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t k = 0; k < std::size_t{kSamples}; ++k) {
          std::memcpy(&values[(first + i) * kSamples + k], piece.data() + i * frameSize + k * step,
                      sizeof(float));
        }
      }
    }
    benchmark::DoNotOptimize(values.data());
  }
  ::close(file);
}

// Reads the label's bytes of each frame alone.
void BareLoopOverFrames(benchmark::State& run, const BenchTrial& trial) {
  const std::size_t frameSize = FrameSize(trial.State());
  const auto frames = static_cast<std::size_t>(trial.State().PointFrameCount);
  const int file = ::open(trial.File().c_str(), O_RDONLY);
  while (run.KeepRunning()) {
    std::vector<Point> points(frames);
    for (std::size_t i = 0; i < frames; ++i) {
      std::array<std::byte, kPointSize> bytes{};
      const auto offset = LabelOffset(trial.State()) + static_cast<off_t>(i * frameSize);
      benchmark::DoNotOptimize(::pread(file, bytes.data(), bytes.size(), offset));
      std::memcpy(&points[i], bytes.data(), sizeof(Point));
    }
    benchmark::DoNotOptimize(points.data());
  }
  ::close(file);
}

void ChannelInSmallFrames(benchmark::State& run) {
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(modVantrel::ReadAnalogDataForIndex(SmallFrames().State(), kChannel));
  }
}

void LoopOverSamples(benchmark::State& run) { BareLoopOverSamples(run, SmallFrames()); }
void LabelInSmallFrames(benchmark::State& run) { ReadLabel(run, SmallFrames()); }
void LoopOverSmallFrames(benchmark::State& run) { BareLoopOverPieces(run, SmallFrames()); }
void LabelInLargeFrames(benchmark::State& run) { ReadLabel(run, LargeFrames()); }
void LoopOverLargeFrames(benchmark::State& run) { BareLoopOverFrames(run, LargeFrames()); }

BENCHMARK(LabelInSmallFrames)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(LoopOverSmallFrames)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(ChannelInSmallFrames)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(LoopOverSamples)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(LabelInLargeFrames)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(LoopOverLargeFrames)->Repetitions(9)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  (void)LargeFrames();
  const double memory = bench::MemoryRise([] {
    benchmark::DoNotOptimize(modVantrel::ReadPointDataForIndex(LargeFrames().State(), kLabel));
  });
  const int status = bench::RunWithBudgets(argc, argv,
                                           {{"LabelInSmallFrames", "LoopOverSmallFrames", 1.5},
                                            {"ChannelInSmallFrames", "LoopOverSamples", 1.5},
                                            {"LabelInLargeFrames", "LoopOverLargeFrames", 1.5}});
  constexpr double kMostMegabytes = 50;
  return bench::PrintRow("Label of 1.9 GB, MB of memory", "", memory, kMostMegabytes) ? status : 1;
}
