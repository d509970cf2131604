// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

#include "deploy/FileTimes.h"
#include "support/RuntimeError.h"

namespace modWindowsFileInfo {

using modAllPurpose::FileErrorFromErrno;

namespace {

Tick OffsetNow() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  return std::chrono::seconds(local.tm_gmtoff);
}

LocalTime FromSystem(const statx_timestamp& time, Tick offset) {
  return LocalTime(std::chrono::seconds(time.tv_sec) +
                   std::chrono::duration_cast<Tick>(std::chrono::nanoseconds(time.tv_nsec)) +
                   offset);
}

timespec ToSystem(LocalTime time, Tick offset) {
  const Tick universal = time.time_since_epoch() - offset;
  const auto seconds = std::chrono::floor<std::chrono::seconds>(universal);
  return {seconds.count(), std::chrono::nanoseconds(universal - seconds).count()};
}

}  // namespace

FileTimes ReadFileTimes(const std::string& path) {
  struct statx status {};
  if (::statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status) != 0) {
    throw FileErrorFromErrno(errno);
  }
  const bool knowsCreation = (status.stx_mask & STATX_BTIME) != 0;
  const Tick offset = OffsetNow();
  return {FromSystem(knowsCreation ? status.stx_btime : status.stx_mtime, offset),
          FromSystem(status.stx_atime, offset), FromSystem(status.stx_mtime, offset)};
}

void SetFileTimes(const std::string& path, const FileTimes& times) {
  const Tick offset = OffsetNow();
  const std::array system = {ToSystem(times.LastAccess, offset), ToSystem(times.LastWrite, offset)};
  if (::utimensat(AT_FDCWD, path.c_str(), system.data(), 0) != 0) throw FileErrorFromErrno(errno);
}

}  // namespace modWindowsFileInfo
