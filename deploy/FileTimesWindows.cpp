// SPDX-License-Identifier: GPL-3.0-or-later

#include <windows.h>

#include "deploy/FileTimes.h"
#include "support/FileSystem.h"
#include "support/WindowsError.h"
#include "support/WindowsHandle.h"

namespace modWindowsFileInfo {

namespace {

// From the first day of the system's calendar, in 1601, to that of the clock's.
constexpr Tick kCalendarStart =
    std::chrono::local_days(std::chrono::year(1601) / 1 / 1).time_since_epoch();

// A file that is open for its times alone.
class FileForTimes {
 public:
  FileForTimes(const std::string& path, DWORD access)
      : file_(::CreateFileW(modAllPurpose::NativePath(path).c_str(), access,
                            modAllPurpose::kShareAll, nullptr, OPEN_EXISTING, 0, nullptr)) {
    if (!file_.IsOpen()) throw modAllPurpose::LastFileError();
  }

  HANDLE Handle() const { return file_.Get(); }

 private:
  modAllPurpose::OpenHandle file_;
};

LocalTime FromSystem(const FILETIME& universal) {
  FILETIME local{};
  if (::FileTimeToLocalFileTime(&universal, &local) == 0) throw modAllPurpose::LastFileError();
  ULARGE_INTEGER ticks{};
  ticks.LowPart = local.dwLowDateTime;
  ticks.HighPart = local.dwHighDateTime;
  return LocalTime(kCalendarStart + Tick(static_cast<std::int64_t>(ticks.QuadPart)));
}

FILETIME ToSystem(LocalTime time) {
  if (time.time_since_epoch() <= kCalendarStart) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::PathFileAccessError);
  }
  ULARGE_INTEGER ticks{};
  ticks.QuadPart = static_cast<ULONGLONG>((time.time_since_epoch() - kCalendarStart).count());
  const FILETIME local = {ticks.LowPart, ticks.HighPart};
  FILETIME universal{};
  if (::LocalFileTimeToFileTime(&local, &universal) == 0) throw modAllPurpose::LastFileError();
  return universal;
}

}  // namespace

FileTimes ReadFileTimes(const std::string& path) {
  const FileForTimes file(path, FILE_READ_ATTRIBUTES);
  FILETIME creation{};
  FILETIME lastAccess{};
  FILETIME lastWrite{};
  if (::GetFileTime(file.Handle(), &creation, &lastAccess, &lastWrite) == 0)
    throw modAllPurpose::LastFileError();
  return {FromSystem(creation), FromSystem(lastAccess), FromSystem(lastWrite)};
}

void SetFileTimes(const std::string& path, const FileTimes& times) {
  const FileForTimes file(path, FILE_WRITE_ATTRIBUTES);
  const FILETIME creation = ToSystem(times.Creation);
  const FILETIME lastAccess = ToSystem(times.LastAccess);
  const FILETIME lastWrite = ToSystem(times.LastWrite);
  if (::SetFileTime(file.Handle(), &creation, &lastAccess, &lastWrite) == 0)
    throw modAllPurpose::LastFileError();
}

}  // namespace modWindowsFileInfo
