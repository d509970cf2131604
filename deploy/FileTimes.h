#pragma once

#include <chrono>
#include <cstdint>
#include <ratio>
#include <string>

// The times that the system keeps of a file.
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

}  // namespace modWindowsFileInfo
