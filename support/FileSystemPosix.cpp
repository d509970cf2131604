// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <system_error>
#include <unistd.h>

#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "support/SystemFiles.h"

namespace modAllPurpose {

namespace fs = std::filesystem;

fs::path NativePath(const std::string& utf8Path) { return utf8Path; }

std::string Utf8Path(const fs::path& nativePath) { return nativePath.string(); }

bool FileExists(const std::string& path) {
  std::error_code failure;
  const auto status = fs::status(path, failure);
  return !failure && fs::exists(status) && !fs::is_directory(status);
}

bool IsFolder(const std::string& path) {
  std::error_code failure;
  return fs::is_directory(path, failure);
}

bool IsNameTaken(const std::string& path) {
  std::error_code failure;
  return fs::exists(fs::symlink_status(path, failure));
}

bool IsRegularFile(const std::string& path) {
  std::error_code failure;
  return fs::is_regular_file(path, failure);
}

std::string WholePath(const std::string& path) {
  std::error_code failure;
  const fs::path whole = fs::absolute(path, failure);
  return failure ? path : whole.string();
}

// A path that begins with what is not there would stay a relative one.
std::string OneSpelling(const std::string& path) {
  std::error_code failure;
  const fs::path whole = fs::weakly_canonical(WholePath(path), failure);
  return failure ? path : whole.string();
}

bool IsSameSpelling(const std::string& path, const std::string& other) { return path == other; }

std::optional<std::chrono::system_clock::time_point> LastWritten(const std::string& path) {
  std::error_code failure;
  const auto written = fs::last_write_time(path, failure);
  if (failure) return std::nullopt;
  return std::chrono::time_point_cast<std::chrono::system_clock::duration>(
      std::chrono::file_clock::to_sys(written));
}

void RemoveFile(const std::string& path) {
  if (::unlink(path.c_str()) != 0) throw FileErrorFromErrno(errno);
}

namespace systemFiles {

std::FILE* CreateNew(const fs::path& path) { return std::fopen(path.c_str(), "wbx"); }

void DeleteIfPossible(const fs::path& path) noexcept { ::unlink(path.c_str()); }

}  // namespace systemFiles

}  // namespace modAllPurpose
