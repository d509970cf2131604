// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <cstdio>

#include <gtest/gtest.h>

#include "console/Progress.h"
#include "tests/TestTrials.h"

namespace {

using console::ProgressText;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

TEST(ProgressText, CountsFilesAndFailuresWhereThereAreAny) {
  EXPECT_EQ(ProgressText(0, 20, 0, seconds(0)), "0 of 20 files");
  EXPECT_EQ(ProgressText(7, 20, 2, milliseconds(10)), "7 of 20 files, 2 failed");
}

TEST(ProgressText, TellsTheTimeThatIsLeftByWhatTheFilesTookThatAreDone) {
  EXPECT_EQ(ProgressText(10, 30, 0, seconds(20)), "10 of 30 files, 0:40 left");
  EXPECT_EQ(ProgressText(100, 700, 1, minutes(1)), "100 of 700 files, 1 failed, 6:00 left");
  EXPECT_EQ(ProgressText(1, 200, 0, minutes(1)), "1 of 200 files, 3:19:00 left");
  EXPECT_EQ(ProgressText(30, 30, 0, seconds(20)), "30 of 30 files, 0:00 left");
}

TEST(ProgressText, TellsNoTimeOfAGuessTooEarly) {
  EXPECT_EQ(ProgressText(1, 30, 0, milliseconds(900)), "1 of 30 files");
  EXPECT_EQ(ProgressText(0, 30, 0, minutes(5)), "0 of 30 files");
}

TEST(Progress, NeverStandsInAFile) {
  const tests::TemporaryFolder folder;
  const auto path = folder / "stderr";
  std::FILE* file = std::fopen(path.string().c_str(), "wb");
  ASSERT_NE(file, nullptr);
  {
    console::Progress progress(file, 100);
    progress.Refresh();
    progress.Count(true);
    progress.Refresh();
  }
  std::fclose(file);
  EXPECT_EQ(tests::ReadWholeFile(path), "");
}

}  // namespace
