// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <string>

#include <benchmark/benchmark.h>
#include <pybind11/embed.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "bench/MemoryPeak.h"
#include "c3d/FrameData.h"
#include "gait/EventExtraction.h"
#include "sample/TrialBuilder.h"

// What the package of Python adds to the core's own reading, and that an open by it costs the same
// however many frames the file has.
namespace {

namespace py = pybind11;

using bench::BenchTrial;
using modVantrel::FileState;

constexpr std::int32_t kLabel = 20;
constexpr std::int32_t kChannel = 3;

BenchTrial TrialOf(std::int16_t frames, std::int16_t points, std::int16_t analogValues) {
  return {sample::TrialBuilder()
              .StoredAs(sample::Storage::Single)
              .Frames(1, frames)
              .SamplesPerFrame(10)
              .BuildWithoutFrames(points, analogValues),
          BenchTrial::Frames::Hole, [](FileState& /*state*/) {}};
}

// Frames of 648 bytes: 20 MB in all.
const BenchTrial& Labels() {
  static const BenchTrial trial = TrialOf(32767, 28, 50);
  return trial;
}

const BenchTrial& SmallTrial() {
  static const BenchTrial trial = TrialOf(10, 3000, 4000);
  return trial;
}

// 1.9 GB, the same points and parameters.
const BenchTrial& LargeTrial() {
  static const BenchTrial trial = TrialOf(32767, 3000, 4000);
  return trial;
}

py::object Open(const BenchTrial& trial) {
  return py::module_::import("vantrel").attr("open")(trial.File().string());
}

// What `mapping` of the trial gives for a place, from 1.
void ReadByModule(benchmark::State& run, const char* mapping, std::int32_t place) {
  const py::object trial = Open(Labels());
  while (run.KeepRunning()) {
    const py::object array = trial.attr(mapping).attr("at")(place - 1);
    benchmark::DoNotOptimize(array.ptr());
  }
}

void LabelByModule(benchmark::State& run) { ReadByModule(run, "points", kLabel); }
void ChannelByModule(benchmark::State& run) { ReadByModule(run, "analogs", kChannel); }

void LabelByCore(benchmark::State& run) {
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(modVantrel::ReadPointDataForIndex(Labels().State(), kLabel));
  }
}

void ChannelByCore(benchmark::State& run) {
  while (run.KeepRunning()) {
    benchmark::DoNotOptimize(modVantrel::ReadAnalogDataForIndex(Labels().State(), kChannel));
  }
}

void OpenByModule(benchmark::State& run, const BenchTrial& trial) {
  while (run.KeepRunning()) Open(trial).attr("close")();
}

void OpenOf10FramesByModule(benchmark::State& run) { OpenByModule(run, SmallTrial()); }
void OpenOf32767FramesByModule(benchmark::State& run) { OpenByModule(run, LargeTrial()); }

void OpenOf10FramesByCore(benchmark::State& run) {
  const std::string file = SmallTrial().File().string();
  while (run.KeepRunning()) {
    FileState state;
    const auto result = modVantrel::OpenC3dFile(state, file, modVantrel::FindGaitEvents);
    if (result != modVantrel::OpenResult::Success) run.SkipWithError("did not open");
  }
}

BENCHMARK(LabelByModule)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(LabelByCore)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(ChannelByModule)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(ChannelByCore)->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenOf10FramesByModule)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(OpenOf32767FramesByModule)->Repetitions(9)->Unit(benchmark::kMicrosecond);
BENCHMARK(OpenOf10FramesByCore)->Repetitions(9)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  const py::scoped_interpreter interpreter;
  py::module_::import("sys").attr("path").attr("insert")(0, VANTREL_PYTHON_FOLDER);
  (void)py::module_::import("vantrel");
  const double memory =
      bench::MemoryRise([] { (void)Open(LargeTrial()).attr("points").attr("at")(kLabel - 1); });
  const int status =
      bench::RunWithBudgets(argc, argv,
                            {{"LabelByModule", "LabelByCore", 1.2},
                             {"ChannelByModule", "ChannelByCore", 1.2},
                             {"OpenOf32767FramesByModule", "OpenOf10FramesByModule", 1.2},
                             {"OpenOf10FramesByModule", "OpenOf10FramesByCore", {}}});
  constexpr double kMostMegabytes = 50;
  return bench::PrintRow("Label of 1.9 GB by the module, MB of memory", "", memory, kMostMegabytes)
             ? status
             : 1;
}
