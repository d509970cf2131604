// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/FileSystem.h"

#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>
#include <utility>

#include <fmt/format.h>

#include "support/RuntimeError.h"
#include "support/SystemFiles.h"

namespace modAllPurpose {

namespace {

// Whether `path` is there. Replacing a file needs no right to write it, so that right is asked for
// here.
bool ExistsAndMayBeWritten(const std::filesystem::path& path) {
  std::FILE* file = systemFiles::OpenToChange(path);
  if (file == nullptr && errno != ENOENT) throw FileErrorFromErrno(errno);
  if (file == nullptr) return false;
  std::fclose(file);
  return true;
}

// A file that is being made, removed again unless it is kept.
class NewFile {
 public:
  // A null `file` is one that could not be made, for the reason of `systemError`.
  NewFile(std::filesystem::path path, std::FILE* file, int systemError)
      : path_(std::move(path)), file_(file) {
    // A new file that cannot be found means that its folder is not there.
    if (file_ == nullptr && systemError == ENOENT) throw RuntimeError(ErrorNumber::PathNotFound);
    if (file_ == nullptr) throw FileErrorFromErrno(systemError);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  ~NewFile() {
    if (file_ != nullptr) std::fclose(file_);
    if (!path_.empty()) systemFiles::DeleteIfPossible(path_);
  }

  const std::filesystem::path& Path() const { return path_; }

  // Writes all that the file is to hold.
  void Write(std::span<const std::byte> bytes) {
    errno = 0;
    const bool written =
        bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), file_) == bytes.size();
    const int writeError = errno;
    const bool closed = std::fclose(std::exchange(file_, nullptr)) == 0;
    if (!written) throw FileErrorFromErrno(writeError);
    if (!closed) throw FileErrorFromErrno(errno);
  }

  void Keep() { path_.clear(); }

  void TakePlaceOf(const std::filesystem::path& target) {
    std::error_code failure;
    std::filesystem::rename(path_, target, failure);
    if (failure) throw FileErrorFromCode(failure);
    Keep();
  }

 private:
  std::filesystem::path path_;
  std::FILE* file_;
};

NewFile MakeFile(const std::filesystem::path& path) {
  std::FILE* file = systemFiles::CreateNew(path);
  const int systemError = errno;
  return {path, file, systemError};
}

// A file of a new name in `folder`.
NewFile MakeTemporaryFile(const std::filesystem::path& folder) {
  constexpr int kAttempts = 100;
  std::random_device random;
  std::filesystem::path path;
  std::FILE* file = nullptr;
  int systemError = EEXIST;
  for (int i = 0; i < kAttempts && file == nullptr && systemError == EEXIST; ++i) {
    path = folder / fmt::format(".vantrel-{:08x}.tmp", random());
    file = systemFiles::CreateNew(path);
    systemError = errno;
  }
  return {path, file, systemError};
}

}  // namespace

void WriteNewFile(const std::string& path, std::span<const std::byte> bytes) {
  NewFile file = MakeFile(NativePath(path));
  file.Write(bytes);
  file.Keep();
}

void WriteFileInOneStep(const std::string& path, std::string_view text) {
  std::filesystem::path target = NativePath(path);
  const bool exists = ExistsAndMayBeWritten(target);
  if (exists) target = systemFiles::WithoutLinks(target);
  NewFile temporary = MakeTemporaryFile(target.parent_path());
  temporary.Write(std::as_bytes(std::span(text)));
  if (exists) systemFiles::CopyRights(target, temporary.Path());
  temporary.TakePlaceOf(target);
}

}  // namespace modAllPurpose
