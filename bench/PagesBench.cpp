// SPDX-License-Identifier: GPL-3.0-or-later

// Pages of curves: reading their values against reading the same labels, painting a page against
// painting an empty one, and vantrel-curves from its start to a PDF of ten trials.
//
// Without a display pages are painted into memory.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "c3d/FrameData.h"
#include "gait/EventExtraction.h"
#include "pages/MakePages.h"
#include "pages/TrialValues.h"
#include "plot/PageDrawing.h"
#include "sample/SampleWalk.h"

namespace {

namespace fs = std::filesystem;
using bench::BenchTrial;
using Clock = std::chrono::steady_clock;

constexpr const char* kSeconds = "seconds";
constexpr int kTrials = 10;
const std::vector<pages::PageKind> kTwoPages = {pages::PageKind::Kinematics,
                                                pages::PageKind::Kinetics};

const BenchTrial& Trial() {
  static const BenchTrial trial(sample::SampleWalk().Build(), BenchTrial::Frames::Written,
                                modVantrel::FindGaitEvents);
  return trial;
}

pages::TrialValues Values() {
  return pages::ReadTrialValues(Trial().State(), {.Kinds = kTwoPages, .LabelsOverTime = {}});
}

void ReadPageValues(benchmark::State& run) {
  while (run.KeepRunning()) benchmark::DoNotOptimize(Values());
}

// The labels that the pages show, and the toe markers of the measures.
std::vector<std::int32_t> LabelsOfPages() {
  std::vector<std::int32_t> labels;
  const auto& names = Trial().State().PointLabels;
  for (std::int32_t i = 1; i <= names.Count(); ++i) {
    const bool isModel =
        names[i].ends_with("Angles") || names[i].ends_with("Moment") || names[i].ends_with("Power");
    if (isModel || names[i].ends_with("TOE")) labels.push_back(i);
  }
  return labels;
}

void ReadTheSameLabels(benchmark::State& run) {
  const std::vector<std::int32_t> labels = LabelsOfPages();
  while (run.KeepRunning()) {
    for (const std::int32_t label : labels) {
      benchmark::DoNotOptimize(modVantrel::ReadPointDataForIndex(Trial().State(), label));
    }
  }
}

pages::PageSet PagesOfTrials(std::size_t trials) {
  const std::vector<pages::TrialValues> values(trials, Values());
  pages::PageChoice choice;
  choice.Kinds = kTwoPages;
  choice.Program = "vantrel-curves";
  return pages::MakePages(values, choice);
}

pages::PageSet EmptyPages() {
  pages::PageSet set = PagesOfTrials(0);
  for (pages::Page& page : set.Pages) page.Panels.clear();
  return set;
}

// The first page of `set` as a window shows it.
void Paint(benchmark::State& run, const pages::PageSet& set) {
  constexpr QSize kPageInAWindow(700, 990);
  QImage image(kPageInAWindow, QImage::Format_RGB32);
  plot::DrawingStyle style;
  style.IsQuick = true;
  while (run.KeepRunning()) {
    image.fill(Qt::white);
    QPainter painter(&image);
    plot::DrawPage(painter, set, 0, QRectF(image.rect()), style);
  }
}

void PaintPageOfOneTrial(benchmark::State& run) { Paint(run, PagesOfTrials(1)); }
void PaintPageOfTenTrials(benchmark::State& run) { Paint(run, PagesOfTrials(kTrials)); }
void PaintEmptyPage(benchmark::State& run) { Paint(run, EmptyPages()); }

void TenTrialsToPdf(benchmark::State& run) {
  std::string files;
  for (int i = 0; i < kTrials; ++i) {
    const fs::path copy = Trial().Folder() / fmt::format("{}.c3d", i);
    fs::copy_file(Trial().File(), copy, fs::copy_options::skip_existing);
    files += fmt::format(" '{}'", copy.string());
  }
  const std::string command = fmt::format("'{}' --overwrite --output '{}'{}", VANTREL_CURVES,
                                          (Trial().Folder() / "visit.pdf").string(), files);
  while (run.KeepRunning()) {
    const Clock::time_point start = Clock::now();
    if (std::system(command.c_str()) != 0) run.SkipWithError("the tool failed");
    const std::chrono::duration<double> taken = Clock::now() - start;
    run.SetIterationTime(taken.count());
    run.counters[kSeconds] = taken.count();
  }
}

BENCHMARK(ReadPageValues)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadTheSameLabels)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(PaintPageOfOneTrial)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(PaintPageOfTenTrials)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(PaintEmptyPage)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(TenTrialsToPdf)->Iterations(1)->Repetitions(7)->UseManualTime();

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  return bench::RunWithBudgets(argc, argv,
                               {{"ReadPageValues", "ReadTheSameLabels", 8.0},
                                {"PaintPageOfOneTrial", "PaintEmptyPage", 20.0},
                                {"PaintPageOfTenTrials", "PaintEmptyPage", 50.0},
                                {"PaintPageOfTenTrials", "ReadTheSameLabels", {}},
                                {"TenTrialsToPdf", "", 0.3, kSeconds}});
}
