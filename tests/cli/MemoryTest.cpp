// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sample/SampleWalk.h"
#include "tests/TestTrials.h"
#include "tests/cli/ToolRun.h"

namespace {

TEST(Memory, AReportThatRunsOutOfItPrintsWhatItHadWritten) {
  constexpr std::size_t kAllowed = 200'000'000;
  const tests::TemporaryFolder folder;
  const std::filesystem::path file = folder / "huge.c3d";
  // 331 million bytes, which the file has and the tool may not hold.
  sample::TrialBuilder()
      .SetParam("HUGE", {"X", {255, 255, 255, 20}, std::vector<std::uint8_t>{1}, "", false, {}})
      .Build()
      .WriteTo(file);
  std::filesystem::resize_file(file, 400'000'000);
  const tests::ToolResult result =
      tests::RunTool({"parameters", file.string(), "--group", "HUGE"}, {.MostMemory = kAllowed});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Out, "HUGE\n");
  EXPECT_EQ(result.Err,
            "vantrel-report: " + file.string() + ": Run-time error '7': Out of memory\n");
}

// The sample walk with as many silent markers as make 2 MB of it.
sample::Trial TrialOf2Megabytes() {
  sample::TrialBuilder walk = sample::SampleWalk();
  constexpr int kMarkers = 225;
  for (int i = 0; i < kMarkers; ++i) {
    walk.AddPoint("M" + std::to_string(i), [](std::int32_t) { return std::array{0.F, 0.F, 0.F}; });
  }
  return walk.Build();
}

// What stands in the column, counted from 1, of the first row.
int CountOf(const std::string& csv, int column) {
  auto place = csv.find('\n');
  for (; column > 1 && place != std::string::npos; --column) place = csv.find(',', place + 1);
  return place == std::string::npos ? 0 : std::atoi(csv.c_str() + place + 1);
}

struct Pooled {
  std::string Report;
  int CountColumn;
};

class MemoryOfManyTrials : public testing::TestWithParam<Pooled> {};

TEST_P(MemoryOfManyTrials, IsNoMoreThan50Megabytes) {
  constexpr int kTrials = 200;
  constexpr std::size_t kAllowed = 50'000'000;  // of address space: the program's own included
  const tests::TemporaryFolder folder;
  TrialOf2Megabytes().WriteTo(folder / "0.c3d");
  const std::vector<std::string> alone = {"--format", "csv", GetParam().Report, "0.c3d"};
  std::vector<std::string> all = alone;
  for (int i = 1; i < kTrials; ++i) {
    all.push_back(std::to_string(i) + ".c3d");
    std::filesystem::create_hard_link(folder / "0.c3d", folder / all.back());
  }
  const tests::ToolResult one = tests::RunTool(alone, {.MostMemory = kAllowed}, folder.Path());
  const tests::ToolResult pooled = tests::RunTool(all, {.MostMemory = kAllowed}, folder.Path());
  EXPECT_EQ(pooled.Status, 0);
  EXPECT_EQ(pooled.Err, "");
  const int count = CountOf(one.Out, GetParam().CountColumn);
  EXPECT_GT(count, 0) << one.Err << one.Out;
  EXPECT_EQ(CountOf(pooled.Out, GetParam().CountColumn), kTrials * count);
}

INSTANTIATE_TEST_SUITE_P(, MemoryOfManyTrials,
                         testing::Values(Pooled{"visit", 5}, Pooled{"variability", 4},
                                         Pooled{"norms", 6}),
                         [](const auto& pooled) { return pooled.param.Report; });

}  // namespace
