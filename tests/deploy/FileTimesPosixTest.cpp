// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>

#include "tests/deploy/FileTimesInAZone.h"

namespace {

using modWindowsFileInfo::FileTimes;
using tests::FileTimesInAZone;
using namespace std::chrono_literals;

bool FileSystemKnowsCreation(const std::filesystem::path& file) {
  struct statx status {};
  return ::statx(AT_FDCWD, file.c_str(), 0, STATX_BTIME, &status) == 0 &&
         (status.stx_mask & STATX_BTIME) != 0;
}

TEST_F(FileTimesInAZone, OfCreationStayAsTheOthersAreSetWhereTheFileSystemKnowsThem) {
  const FileTimes before = Read();
  FileTimes times = before;
  times.LastAccess -= 24h;
  times.LastWrite -= 48h;
  Set(times);
  EXPECT_EQ(Read().Creation, FileSystemKnowsCreation(file_) ? before.Creation : times.LastWrite);
}

}  // namespace
