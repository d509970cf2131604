// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <cstdint>
#include <windows.h>

#include "tests/deploy/FileTimesInAZone.h"

namespace {

using modWindowsFileInfo::FileTimes;
using modWindowsFileInfo::LocalTime;
using modWindowsFileInfo::Tick;
using tests::FileTimesInAZone;
using namespace std::chrono_literals;

// Three times of a file in the form of the system; 0 for one that is left as it is.
struct SystemTimes {
  std::uint64_t Creation = 0;
  std::uint64_t LastAccess = 0;
  std::uint64_t LastWrite = 0;
};

std::uint64_t Ticks(const FILETIME* time) {
  if (time == nullptr) return 0;
  return ULARGE_INTEGER{{time->dwLowDateTime, time->dwHighDateTime}}.QuadPart;
}

// What was last handed to the system's SetFileTime, which this program calls through SeeTimes.
SystemTimes handedOver;

}  // namespace

extern "C" {
// The places where the program finds the function, the system's own and the one that it is given.
extern decltype(&::SetFileTime) systemsSetFileTime __asm__("__real___imp_SetFileTime");
extern decltype(&::SetFileTime) givenSetFileTime __asm__("__wrap___imp_SetFileTime");

static BOOL WINAPI SeeTimes(HANDLE file, const FILETIME* creation, const FILETIME* lastAccess,
                            const FILETIME* lastWrite) {
  handedOver = {Ticks(creation), Ticks(lastAccess), Ticks(lastWrite)};
  return systemsSetFileTime(file, creation, lastAccess, lastWrite);
}
decltype(&::SetFileTime) givenSetFileTime = &SeeTimes;
}

namespace {

// A file that is open for its times.
class OpenFile {
 public:
  explicit OpenFile(const std::filesystem::path& file)
      : handle_(::CreateFileW(file.c_str(), FILE_WRITE_ATTRIBUTES | FILE_READ_ATTRIBUTES,
                              FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { ::CloseHandle(handle_); }

  SystemTimes Times() const {
    FILETIME creation{};
    FILETIME lastAccess{};
    FILETIME lastWrite{};
    ::GetFileTime(handle_, &creation, &lastAccess, &lastWrite);
    return {Ticks(&creation), Ticks(&lastAccess), Ticks(&lastWrite)};
  }

  // Whether the file system keeps a creation time that it is told; that of Wine does not.
  bool KeepsCreationTime() const {
    const FILETIME told = {0, 0x01D00000};
    ::SetFileTime(handle_, &told, nullptr, nullptr);
    return Times().Creation == Ticks(&told);
  }

 private:
  HANDLE handle_;
};

constexpr std::uint64_t InTicks(Tick time) { return static_cast<std::uint64_t>(time.count()); }

TEST_F(FileTimesInAZone, AreHandedToTheSystemAllThree) {
  const SystemTimes before = OpenFile(file_).Times();
  FileTimes times = Read();
  times.Creation -= 96h;
  times.LastAccess -= 48h;
  times.LastWrite -= 864s;
  Set(times);
  EXPECT_EQ(handedOver.Creation, before.Creation - InTicks(96h));
  EXPECT_EQ(handedOver.LastAccess, before.LastAccess - InTicks(48h));
  EXPECT_EQ(handedOver.LastWrite, before.LastWrite - InTicks(864s));
}

TEST_F(FileTimesInAZone, OfCreationIsReadAsItWasSet) {
  FileTimes times = Read();
  times.Creation -= 96h;
  Set(times);
  if (!OpenFile(file_).KeepsCreationTime()) GTEST_SKIP() << "no creation time can be set here";
  Set(times);
  EXPECT_EQ(Read().Creation, times.Creation);
}

TEST_F(FileTimesInAZone, BeforeTheCalendarOfTheSystemCannotBeSet) {
  const FileTimes before = Read();
  FileTimes times = before;
  times.LastWrite = LocalTime(std::chrono::local_days(1600y / 1 / 1).time_since_epoch());
  EXPECT_EQ(tests::ErrorNumberOf([&] { Set(times); }), 75);
  EXPECT_EQ(Read(), before);
}

}  // namespace
