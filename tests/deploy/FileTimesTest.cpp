// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <filesystem>

#include "tests/deploy/FileTimesInAZone.h"

namespace {

namespace fs = std::filesystem;
using modWindowsFileInfo::FileTimes;
using tests::FileTimesInAZone;
using namespace std::chrono_literals;

TEST_F(FileTimesInAZone, AreThoseOfTheClockOnTheWall) {
  const auto universal = std::chrono::system_clock::now().time_since_epoch();
  const FileTimes times = Read();
  for (const auto time : {times.Creation, times.LastAccess, times.LastWrite}) {
    const auto offset =
        std::chrono::round<std::chrono::minutes>(time.time_since_epoch() - universal);
    EXPECT_TRUE(offset == 5h + 30min || offset == 6h + 30min) << offset.count() << " minutes";
  }
}

TEST_F(FileTimesInAZone, MoveAsFarAsTheyAreSetTo) {
  const auto before = fs::last_write_time(file_);
  FileTimes times = Read();
  times.LastWrite -= 864s;
  Set(times);
  EXPECT_EQ(std::chrono::round<std::chrono::microseconds>(before - fs::last_write_time(file_)),
            864s);
}

TEST_F(FileTimesInAZone, AreReadAsTheyWereSet) {
  FileTimes times = Read();
  times.LastAccess -= 48h;
  times.LastWrite -= 864s;
  Set(times);
  const FileTimes now = Read();
  EXPECT_EQ(now.LastAccess, times.LastAccess);
  EXPECT_EQ(now.LastWrite, times.LastWrite);
}

TEST_F(FileTimesInAZone, OfTheOtherHalfOfTheYearAreReadAsTheyWereSet) {
  FileTimes times = Read();
  times.LastWrite -= 183 * 24h;
  Set(times);
  EXPECT_EQ(Read().LastWrite, times.LastWrite);
}

TEST_F(FileTimesInAZone, OfTheOtherHalfOfTheYearMoveAsFarAsTheyAreSetTo) {
  const auto before = fs::last_write_time(file_);
  FileTimes times = Read();
  times.LastWrite -= 183 * 24h;
  Set(times);
  EXPECT_EQ(std::chrono::round<std::chrono::microseconds>(before - fs::last_write_time(file_)),
            183 * 24h);
}

}  // namespace
