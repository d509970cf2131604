// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

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

}  // namespace
