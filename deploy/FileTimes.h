// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <ratio>
#include <string>

// The times that the system keeps of a file, as the clock on the wall shows them. One offset from
// universal time, that of the moment of asking, holds for all of them, so that a time that is read
// and set again stays what it was in whichever half of the year it lies.
namespace modWindowsFileInfo {

// A tenth of a microsecond, the unit in which file times are kept.
using Tick = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
using LocalTime = std::chrono::local_time<Tick>;

struct FileTimes {
  LocalTime Creation;
  LocalTime LastAccess;
  LocalTime LastWrite;

  friend bool operator==(const FileTimes&, const FileTimes&) = default;
};

// What follows is the program's on Windows alone: elsewhere it deploys nothing, and the tests of
// the deployment bring their own.

// The times of the file at `path` (UTF-8). A file system that knows no creation time gives the last
// write for it. Error 53, 70, 75 or 76 where the file cannot be reached.
FileTimes ReadFileTimes(const std::string& path);

// Sets the times of the file at `path`; the creation only where the system lets it be set. Fails
// like ReadFileTimes, and with error 75 for a time before 1601 on Windows, which keeps none.
void SetFileTimes(const std::string& path, const FileTimes& times);

}  // namespace modWindowsFileInfo
