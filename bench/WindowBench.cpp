// SPDX-License-Identifier: GPL-3.0-or-later

// The window must be on the screen soon, and a long listing must be as quick to show as to make.
// Each measurement runs in a process of its own, so that its start counts and its memory is its
// own; the program fails where one is over its bound.
//
// Without a display the window is painted into memory; set QT_QPA_PLATFORM=xcb for a real one.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <limits>
#include <random>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "app/FormLayout.h"
#include "app/MainWindow.h"
#include "app/OutputPane.h"
#include "app/frmVantrel.h"
#include "bench/Budget.h"
#include "bench/MemoryPeak.h"
#include "c3d/FileState.h"
#include "sample/SampleWalk.h"
#include "sample/TrialBuilder.h"

namespace {

namespace fs = std::filesystem;
using bench::PrintRow;
using Clock = std::chrono::steady_clock;

constexpr double kMostSecondsToFirstPaint = 0.3;
constexpr double kMostSecondsToShow = 1.0;
constexpr double kMostSecondsAPage = 1.0 / 25;  // scrolling looks smooth
constexpr double kMostMegabytes = 200;

constexpr std::int16_t kFrames = 32750;
constexpr std::int16_t kSamplesPerFrame = 20;
constexpr int kLines = kFrames * kSamplesPerFrame;
constexpr int kHeadingLines = 3;  // two above, an empty one below

constexpr int kOverBound = 1;

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// Has every event that is due served, paints included.
void Settle() {
  constexpr int kRounds = 5;
  for (int i = 0; i < kRounds; ++i) QApplication::processEvents();
}

double SecondsAPage(app::OutputPane& pane) {
  constexpr int kPages = 200;
  constexpr int kLinesAPage = 50;
  const Clock::time_point start = Clock::now();
  for (int i = 0; i < kPages; ++i) {
    // Far jumps and steps to the next page in turn.
    const int line = i % 2 == 0 ? (i * 7919) % kLines : pane.firstVisibleLine() + kLinesAPage;
    pane.verticalScrollBar()->setValue(line);
    pane.viewport()->repaint();
  }
  return SecondsSince(start) / kPages;
}

double SecondsToShow(const std::string& text) {
  app::OutputPane pane(nullptr);
  constexpr int kSide = 700;
  pane.resize(kSide, kSide);
  pane.show();
  Settle();
  const Clock::time_point start = Clock::now();
  pane.Append(text);
  Settle();
  return SecondsSince(start);
}

// Takes the name of the trial with the long listing from the command line.
int MeasureListing(int argc, char** argv) {
  QApplication application(argc, argv);
  modVantrel::FileState state;
  app::MainWindow window(state);
  window.Load(argv[1]);
  const app::frmVantrel& form = window.Form();
  window.show();
  window.resize(window.size() + app::kDesignSize - form.size());  // whatever screen there is
  Settle();
  form.findChild<QLineEdit*>(QStringLiteral("txtAnalogLabel"))->setText(QStringLiteral("EMG"));
  auto* pane = form.findChild<app::OutputPane*>(QStringLiteral("txt"));

  const Clock::time_point start = Clock::now();
  form.findChild<QPushButton*>(QStringLiteral("cmdShowAnalogData"))->click();
  Settle();
  const double seconds = SecondsSince(start);

  if (pane->lines() != kLines + kHeadingLines + 1) {
    std::printf("the pane shows %d lines\n", pane->lines());
    return kOverBound;
  }
  const double megabytes = bench::ProcessMegabytes("VmHWM:");
  bool holds = PrintRow("655,000 lines made and shown, s", "", seconds, kMostSecondsToShow);
  PrintRow("655,000 lines made and shown", "their finished text shown",
           seconds / SecondsToShow(pane->Text()), {});
  holds &= PrintRow("One of their pages painted, s", "", SecondsAPage(*pane), kMostSecondsAPage);
  holds &= PrintRow("Memory of the whole program, MB", "", megabytes, kMostMegabytes);
  return holds ? 0 : kOverBound;
}

// Runs `program` with `file` for one measurement; its exit status.
int Run(const char* program, const std::string& file) {
  std::cout.flush();
  const pid_t child = fork();
  if (child == 0) {
    execl(program, program, file.c_str(), nullptr);
    std::_Exit(kOverBound);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : kOverBound;
}

bool FirstPaintHolds(const std::string& file) {
  constexpr int kRuns = 7;
  double best = std::numeric_limits<double>::infinity();
  double worst = 0;
  for (int i = 0; i < kRuns; ++i) {
    const Clock::time_point start = Clock::now();
    if (Run(VANTREL_FIRST_PAINT, file) != 0) return false;
    best = std::min(best, SecondsSince(start));
    worst = std::max(worst, SecondsSince(start));
  }
  PrintRow("Start to first paint with the sample, quickest, s", "", best, {});
  return PrintRow("Start to first paint with the sample, slowest, s", "", worst,
                  kMostSecondsToFirstPaint);
}

int MeasureAll() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const fs::path folder =
      fs::temp_directory_path() / ("vantrel-bench-" + std::to_string(std::random_device()()));
  fs::create_directory(folder);
  qputenv("XDG_CONFIG_HOME", folder.c_str());  // nobody's settings
  sample::SampleWalk().Build().WriteTo(folder / "walk.c3d");
  sample::TrialBuilder()
      .Frames(1, kFrames)
      .SamplesPerFrame(kSamplesPerFrame)
      .AddAnalog("EMG", "muscle", [](std::int32_t sample) { return float(sample % 2000 - 1000); })
      .Build()
      .WriteTo(folder / "long.c3d");
  bool holds = FirstPaintHolds((folder / "walk.c3d").string());
  holds &= Run("/proc/self/exe", (folder / "long.c3d").string()) == 0;
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  return holds ? 0 : kOverBound;
}

}  // namespace

int main(int argc, char** argv) { return argc > 1 ? MeasureListing(argc, argv) : MeasureAll(); }
