// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#ifdef _WIN32
#include <windows.h>
#endif

#include <gtest/gtest.h>

#include "deploy/FileTimes.h"
#include "support/FileSystem.h"
#include "tests/TestTrials.h"

// The times of a file in a time zone that is far from universal time and has a summer time. The
// system learns of it as the program starts, so this program is started with it: VANTREL_TEST_ZONE.
namespace {

namespace fs = std::filesystem;
using modWindowsFileInfo::FileTimes;
using modWindowsFileInfo::LocalTime;
using modWindowsFileInfo::ReadFileTimes;
using modWindowsFileInfo::SetFileTimes;
using namespace std::chrono_literals;

class FileTimesInAZone : public testing::Test {
 protected:
  void SetUp() override {
    const char* zone = std::getenv("TZ");
    ASSERT_STREQ(zone == nullptr ? "" : zone, VANTREL_TEST_ZONE) << "set TZ to this";
    std::ofstream(file_) << "text";
  }

  FileTimes Read() const { return ReadFileTimes(modAllPurpose::Utf8Path(file_)); }
  void Set(const FileTimes& times) const { SetFileTimes(modAllPurpose::Utf8Path(file_), times); }

  tests::TemporaryFolder folder_;
  const fs::path file_ = folder_ / "file";
};

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

#ifdef _WIN32
// Whether the file system keeps a creation time that it is told; that of Wine does not.
bool KeepsCreationTime(const fs::path& file) {
  const HANDLE handle = ::CreateFileW(file.c_str(), FILE_WRITE_ATTRIBUTES | FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  const FILETIME told = {0, 0x01D00000};
  FILETIME kept{};
  ::SetFileTime(handle, &told, nullptr, nullptr);
  ::GetFileTime(handle, &kept, nullptr, nullptr);
  ::CloseHandle(handle);
  return ::CompareFileTime(&told, &kept) == 0;
}

TEST_F(FileTimesInAZone, OfCreationIsReadAsItWasSet) {
  FileTimes times = Read();
  times.Creation -= 96h;
  Set(times);
  if (!KeepsCreationTime(file_)) GTEST_SKIP() << "no creation time can be set here";
  Set(times);
  EXPECT_EQ(Read().Creation, times.Creation);
}
#endif

#ifdef _WIN32
TEST_F(FileTimesInAZone, BeforeTheCalendarOfTheSystemCannotBeSet) {
  const FileTimes before = Read();
  FileTimes times = before;
  times.LastWrite = LocalTime(std::chrono::local_days(1600y / 1 / 1).time_since_epoch());
  EXPECT_EQ(tests::ErrorNumberOf([&] { Set(times); }), 75);
  EXPECT_EQ(Read(), before);
}
#endif

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
