// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include <benchmark/benchmark.h>

#include "bench/BenchTrial.h"
#include "bench/Budget.h"
#include "c3d/FrameData.h"
#include "reports/CsvTable.h"
#include "reports/JsonTable.h"
#include "reports/ListingReport.h"
#include "reports/TableColumns.h"
#include "reports/TrialTables.h"
#include "sample/TrialBuilder.h"

// Long listings, reading included, against the same lines by the C library. Both sides hand their
// lines on in pieces, as the tool does, so that neither is measured by how a long text grows.
namespace {

using bench::BenchTrial;
using modVantrel::FileState;

constexpr std::int16_t kFrames = 32767;
constexpr std::int16_t kSamples = 20;  // 655,340 lines

// 2 k + 1. An odd number of 1/1024 or 1/131072 has too many decimals to be a tie of a form, which
// the C library would round to the even digit.
float Odd(std::int32_t k) { return static_cast<float>(2 * k + 1); }

const BenchTrial& Trial() {
  static const BenchTrial trial(
      sample::TrialBuilder()
          .StoredAs(sample::Storage::Single)
          .Frames(1, kFrames)
          .AddPoint("LTOE",
                    [](std::int32_t frame) {
                      const float x = Odd(frame) / 1024;
                      return std::array{x - 20, 3000 - 50 * x, -x};
                    })
          .SamplesPerFrame(kSamples)
          .AddAnalog("Fz", "", [](std::int32_t k) { return Odd(k) / 131072 - 5; })
          .Build(),
      BenchTrial::Frames::Written, [](FileState& /*state*/) {});
  return trial;
}

// The lines of a report without the two above and the empty one below them.
std::string LinesOfListing(const std::string& text) {
  const auto heading = text.find('\n', text.find('\n') + 1) + 1;
  return text.substr(heading, text.size() - heading - 1);
}

constexpr std::size_t kPieceSize = std::size_t{256} * 1024;

// Takes lines and hands them on in pieces: to `taker` where there is one, else to nobody.
class Pieces : public modAllPurpose::ReportOutput {
 public:
  using Taker = std::function<void(std::string_view piece)>;

  explicit Pieces(Taker taker = nullptr) : taker_(std::move(taker)) {}

  void BeginReport() override {}
  void AppendOutput(std::string_view text, bool /*paneOnly*/, bool continueLine) override {
    pending_ += text;
    if (!continueLine) pending_ += '\n';
    if (pending_.size() >= kPieceSize) HandOn();
  }
  void HandOn() {
    benchmark::DoNotOptimize(pending_.data());
    if (taker_) taker_(pending_);
    pending_.clear();
  }

 private:
  std::string pending_;
  Taker taker_;
};

void AnalogListing(Pieces& output) {
  (void)reports::ShowAnalogData(Trial().State(), "Fz", output);
  output.HandOn();
}

void PointListing(Pieces& output) {
  (void)reports::ShowPointData(Trial().State(), "LTOE", output);
  output.HandOn();
}

// The rows of the point's table, in the form of `Table`.
template <typename Table>
void PointTable(Pieces& output) {
  Table table(output);
  table.Begin(reports::columns::kPoint);
  reports::TableOptions options;
  options.Labels = {"LTOE"};
  (void)reports::PointRows(Trial().State(), Trial().File().string(), options, table);
  table.End();
  output.HandOn();
}

// The same of the channel.
template <typename Table>
void AnalogTable(Pieces& output) {
  Table table(output);
  table.Begin(reports::columns::kAnalog);
  reports::TableOptions options;
  options.Labels = {"Fz"};
  (void)reports::AnalogRows(Trial().State(), Trial().File().string(), options, table);
  table.End();
  output.HandOn();
}

void AnalogLinesByPrintf(const modVantrel::AnalogFrames& frames, Pieces& output) {
  std::array<char, 128> line{};
  int sample = 0;
  for (std::int32_t i = 1; i <= frames.Count(); ++i) {
    for (const float value : frames[i].Values) {
      const int size = std::snprintf(line.data(), line.size(), "  %03d  %04d  %08.5f  %.8f", i,
                                     ++sample, double{frames[i].Time}, double{value});
      output.Line({line.data(), static_cast<std::size_t>(size)});
    }
  }
  output.HandOn();
}

void PointLinesByPrintf(const modVantrel::PointSamples& samples, Pieces& output) {
  std::array<char, 128> line{};
  const auto width = [](float value) { return value < 0 ? 10 : 9; };
  for (std::int32_t i = 1; i <= samples.Count(); ++i) {
    const modVantrel::PointSample& s = samples[i];
    const int size = std::snprintf(
        line.data(), line.size(), "  %03d  %08.5f  %0*.4f  %0*.4f  %0*.4f", i, double{s.Time},
        width(s.X), double{s.X}, width(s.Y), double{s.Y}, width(s.Z), double{s.Z});
    output.Line({line.data(), static_cast<std::size_t>(size)});
  }
  output.HandOn();
}

void ListAnalog(benchmark::State& run) {
  Pieces output;
  while (run.KeepRunning()) AnalogListing(output);
}

void PrintfAnalog(benchmark::State& run) {
  const auto frames = modVantrel::GetAnalogDataForLabel(Trial().State(), "Fz");
  Pieces output;
  while (run.KeepRunning()) AnalogLinesByPrintf(frames, output);
}

// A file that the pieces of a text go to, as fast as the system takes them.
class TextFile {
 public:
  TextFile()
      : file_(::open((Trial().Folder() / "listing.txt").c_str(),
                     O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR)) {}
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;
  ~TextFile() { ::close(file_); }

  void Write(std::string_view piece) const {
    if (::write(file_, piece.data(), piece.size()) != static_cast<ssize_t>(piece.size())) {
      throw std::runtime_error("the text of a listing cannot be written");
    }
  }

 private:
  int file_;
};

void ListAnalogToFile(benchmark::State& run) {
  while (run.KeepRunning()) {
    const TextFile file;
    Pieces output([&file](std::string_view piece) { file.Write(piece); });
    AnalogListing(output);
  }
}

void WriteFinishedText(benchmark::State& run) {
  std::string text;
  Pieces output([&text](std::string_view piece) { text += piece; });
  AnalogListing(output);
  while (run.KeepRunning()) {
    const TextFile file;
    for (std::size_t i = 0; i < text.size(); i += kPieceSize) {
      file.Write(std::string_view(text).substr(i, kPieceSize));
    }
  }
}

void ListPoint(benchmark::State& run) {
  Pieces output;
  while (run.KeepRunning()) PointListing(output);
}

void PrintfPoint(benchmark::State& run) {
  const auto samples = modVantrel::GetPointDataForLabel(Trial().State(), "LTOE");
  Pieces output;
  while (run.KeepRunning()) PointLinesByPrintf(samples, output);
}

template <typename Print>
void PrintAgain(benchmark::State& run, const Print& print) {
  Pieces output;
  while (run.KeepRunning()) print(output);
}

void PointAsCsv(benchmark::State& run) { PrintAgain(run, PointTable<reports::CsvTable>); }
void PointAsJson(benchmark::State& run) { PrintAgain(run, PointTable<reports::JsonTable>); }
void AnalogAsCsv(benchmark::State& run) { PrintAgain(run, AnalogTable<reports::CsvTable>); }
void AnalogAsJson(benchmark::State& run) { PrintAgain(run, AnalogTable<reports::JsonTable>); }

BENCHMARK(ListAnalog)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(PrintfAnalog)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(ListAnalogToFile)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteFinishedText)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(ListPoint)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(PrintfPoint)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(PointAsCsv)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(PointAsJson)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(AnalogAsCsv)->Repetitions(7)->Unit(benchmark::kMillisecond);
BENCHMARK(AnalogAsJson)->Repetitions(7)->Unit(benchmark::kMillisecond);

// What `print` hands on in all.
template <typename Print>
std::string TextOf(const Print& print) {
  std::string text;
  Pieces output([&text](std::string_view piece) { text += piece; });
  print(output);
  return text;
}

// Both sides must print the same, or their times say nothing.
void RequireSameLines() {
  const FileState& state = Trial().State();
  const auto frames = modVantrel::GetAnalogDataForLabel(state, "Fz");
  const auto samples = modVantrel::GetPointDataForLabel(state, "LTOE");
  if (LinesOfListing(TextOf(AnalogListing)) !=
          TextOf([&](Pieces& output) { AnalogLinesByPrintf(frames, output); }) ||
      LinesOfListing(TextOf(PointListing)) !=
          TextOf([&](Pieces& output) { PointLinesByPrintf(samples, output); })) {
    throw std::runtime_error("the listing and the C library print different lines");
  }
}

}  // namespace

int main(int argc, char** argv) {
  RequireSameLines();
  return bench::RunWithBudgets(argc, argv,
                               {{"ListAnalog", "PrintfAnalog", 0.2},
                                {"ListPoint", "PrintfPoint", 0.2},
                                {"ListAnalogToFile", "WriteFinishedText", {}},
                                {"PointAsCsv", "ListPoint", 1.0},
                                {"AnalogAsCsv", "ListAnalog", {}},
                                {"PointAsJson", "ListPoint", {}},
                                {"AnalogAsJson", "ListAnalog", {}}});
}
