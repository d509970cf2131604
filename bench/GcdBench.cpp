#include <array>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "gait/EventExtraction.h"
#include "gait/GcdCommand.h"
#include "gait/GcdCurveTable.h"
#include "sample/TrialBuilder.h"

// The GCD command over 1, 5 and 20 strides of one long trial: what it reads grows with the labels,
// not with the strides.
namespace {

using bench::BenchTrial;

constexpr const char* kBytesRead = "bytes_read";

sample::PointCurve Curve(float phase) {
  return [phase](std::int32_t frame) {
    const float x = phase + static_cast<float>(frame % 110);
    return std::array{x, 0.01F * x * x, -x};
  };
}

// 12000 frames with the toes and every label of both sides that a GCD file knows.
sample::Trial WalkOf(int strides) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 12000);
  float phase = 0;
  for (const std::string side : {"L", "R"}) {
    builder.AddPoint(side + "TOE", Curve(++phase));
    for (const auto& row : modVantrel::GcdCurveTable()) {
      builder.AddPoint(side + std::string(row.Label), Curve(++phase));
    }
  }
  // Every strike but the last two starts a stride, left and right in turn.
  float time = 1;
  for (int strike = 0; strike < strides + 2; ++strike, time += 0.55F) {
    const bool left = strike % 2 == 0;
    builder.AddEvent(left ? "Left" : "Right", "Foot Strike", time);
    builder.AddEvent(left ? "Right" : "Left", "Foot Off", time + 0.11F);
  }
  return builder.Build();
}

const BenchTrial& Walk(int strides) {
  static const BenchTrial one(WalkOf(1), BenchTrial::Frames::Written, modVantrel::FindGaitEvents);
  static const BenchTrial five(WalkOf(5), BenchTrial::Frames::Written, modVantrel::FindGaitEvents);
  static const BenchTrial twenty(WalkOf(20), BenchTrial::Frames::Written,
                                 modVantrel::FindGaitEvents);
  return strides == 1 ? one : strides == 5 ? five : twenty;
}

class OverwriteAll : public modVantrel::OverwriteQuestion {
 public:
  modVantrel::OverwriteAnswer Ask(const std::string& /*gcdFileName*/) override {
    return modVantrel::OverwriteAnswer::YesToAll;
  }
};

// Bytes that this process has read since it started.
double BytesReadSoFar() {
  std::ifstream file("/proc/self/io");
  std::string name;
  double bytes = 0;
  file >> name >> bytes;
  return bytes;
}

void WriteGcdFiles(benchmark::State& run, int strides) {
  const BenchTrial& walk = Walk(strides);
  if (walk.State().GaitEvents.ValidStrideCount != strides) {
    run.SkipWithError("the trial has another number of strides");
    return;
  }
  OverwriteAll question;
  const double before = BytesReadSoFar();
  while (run.KeepRunning()) {
    modAllPurpose::TextReport output;
    (void)modVantrel::WriteGcdFiles(walk.State(), {}, question, output);
    benchmark::DoNotOptimize(output.Text().data());
  }
  run.counters[kBytesRead] =
      benchmark::Counter(BytesReadSoFar() - before, benchmark::Counter::kAvgIterations);
}

void OneStride(benchmark::State& run) { WriteGcdFiles(run, 1); }
void FiveStrides(benchmark::State& run) { WriteGcdFiles(run, 5); }
void TwentyStrides(benchmark::State& run) { WriteGcdFiles(run, 20); }

BENCHMARK(OneStride)->Repetitions(5)->Unit(benchmark::kMillisecond);
BENCHMARK(FiveStrides)->Repetitions(5)->Unit(benchmark::kMillisecond);
BENCHMARK(TwentyStrides)->Repetitions(5)->Unit(benchmark::kMillisecond);

}  // namespace

// Two strides have the labels of both feet, so from one stride to several the labels double; from
// then on nothing more is read.
int main(int argc, char* argv[]) {
  return bench::RunWithBudgets(argc, argv,
                               {{"FiveStrides", "OneStride", 2.05, kBytesRead},
                                {"TwentyStrides", "FiveStrides", 1.01, kBytesRead},
                                {"TwentyStrides", "FiveStrides", 2.0}});
}
