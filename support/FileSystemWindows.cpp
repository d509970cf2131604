// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <system_error>
#include <windows.h>

#include "support/FileSystem.h"
#include "support/RandomAccessFile.h"
#include "support/SystemFiles.h"
#include "support/WindowsError.h"
#include "support/WindowsHandle.h"
#include "support/WindowsPath.h"
#include "support/WindowsText.h"

// The system itself is asked here rather than the library, which does not know the paths that begin
// "\\server" or "\\?".
namespace modAllPurpose {

namespace fs = std::filesystem;

namespace {

// INVALID_FILE_ATTRIBUTES where there is nothing of that name or asking fails.
DWORD AttributesOf(const std::string& path) {
  DWORD attributes = INVALID_FILE_ATTRIBUTES;
  IgnoringErrors([&] { attributes = ::GetFileAttributesW(NativePath(path).c_str()); });
  return attributes;
}

}  // namespace

RuntimeError LastFileError() {
  return FileErrorFromCode({static_cast<int>(::GetLastError()), std::system_category()});
}

fs::path NativePath(const std::string& utf8Path) { return OfAnyLength(Utf16Text(utf8Path)); }

std::string Utf8Path(const fs::path& nativePath) {
  return Utf8Text(nativePath.native(), HalfCharacters::Refused);
}

bool FileExists(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool IsFolder(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsNameTaken(const std::string& path) { return AttributesOf(path) != INVALID_FILE_ATTRIBUTES; }

bool IsRegularFile(const std::string& path) {
  RandomAccessFile file;
  return FileExists(path) && IgnoringErrors([&] { file.Open(path); });
}

std::string WholePath(const std::string& path) {
  const std::wstring whole = WholeWindowsPath(Utf16Text(path));
  return whole.empty() ? path : Utf8Path(whole);
}

std::string OneSpelling(const std::string& path) {
  std::wstring whole = WholeWindowsPath(Utf16Text(path));
  if (whole.empty()) return path;
  ::CharUpperBuffW(whole.data(), static_cast<DWORD>(whole.size()));
  return Utf8Path(whole);
}

bool IsSameSpelling(const std::string& path, const std::string& other) {
  bool isSame = path == other;
  IgnoringErrors([&] { isSame = isSame || OneSpelling(path) == OneSpelling(other); });
  return isSame;
}

std::optional<std::chrono::system_clock::time_point> LastWritten(const std::string& path) {
  std::wstring native;
  if (!IgnoringErrors([&] { native = NativePath(path); })) return std::nullopt;
  const OpenHandle file(::CreateFileW(native.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  FILETIME written{};
  if (!file.IsOpen() || ::GetFileTime(file.Get(), nullptr, nullptr, &written) == 0) {
    return std::nullopt;
  }
  // Counted in tenths of a microsecond from the first day of the system's calendar.
  using Tick = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
  constexpr std::chrono::sys_days kStart = std::chrono::year(1601) / 1 / 1;
  const auto high = static_cast<std::int64_t>(written.dwHighDateTime);
  const Tick ticks((high << 32) + static_cast<std::int64_t>(written.dwLowDateTime));
  if (ticks.count() == 0) return std::nullopt;  // of systems that keep no times
  return std::chrono::time_point_cast<std::chrono::system_clock::duration>(kStart + ticks);
}

void RemoveFile(const std::string& path) {
  const fs::path native = NativePath(path);
  const DWORD attributes = ::GetFileAttributesW(native.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) throw LastFileError();
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    throw RuntimeError(ErrorNumber::PathFileAccessError);
  }
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    ::SetFileAttributesW(native.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
  }
  if (::DeleteFileW(native.c_str()) == 0) throw LastFileError();
}

namespace systemFiles {

std::FILE* CreateNew(const fs::path& path) {
  const int descriptor =
      ::_wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
  if (descriptor < 0) return nullptr;
  std::FILE* file = ::_fdopen(descriptor, "wb");
  if (file != nullptr) return file;
  const int failure = errno;
  ::_close(descriptor);
  DeleteIfPossible(path);
  errno = failure;
  return nullptr;
}

void DeleteIfPossible(const fs::path& path) noexcept { ::DeleteFileW(path.c_str()); }

}  // namespace systemFiles

}  // namespace modAllPurpose
