// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/FileSystem.h"

#include <cerrno>
#include <cstdio>
#include <utility>

#include "support/FileInWaiting.h"
#include "support/RuntimeError.h"
#include "support/SystemFiles.h"

namespace modAllPurpose {

namespace {

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

 private:
  std::filesystem::path path_;
  std::FILE* file_;
};

NewFile MakeFile(const std::filesystem::path& path) {
  std::FILE* file = systemFiles::CreateNew(path);
  const int systemError = errno;
  return {path, file, systemError};
}

#ifdef _WIN32
constexpr std::string_view kSeparators = R"(/\:)";
#else
constexpr std::string_view kSeparators = "/";
#endif

}  // namespace

std::string_view OwnName(std::string_view path) {
  return path.substr(path.find_last_of(kSeparators) + 1);
}

std::string_view FolderPart(std::string_view path) {
  return path.substr(0, path.find_last_of(kSeparators) + 1);
}

std::string_view FolderOf(std::string_view path) {
  const std::string_view part = FolderPart(path);
  const std::string_view withoutEnd = part.substr(0, part.empty() ? 0 : part.size() - 1);
  if (part.empty()) return ".";
  return withoutEnd.empty() || withoutEnd.ends_with(':') || part.ends_with(':') ? part : withoutEnd;
}

bool IsSameFile(const std::string& path, const std::string& other) {
  const auto identity = IdentityOf(NativePath(path));
  return identity && identity == IdentityOf(NativePath(other));
}

void WriteNewFile(const std::string& path, std::span<const std::byte> bytes) {
  NewFile file = MakeFile(NativePath(path));
  file.Write(bytes);
  file.Keep();
}

}  // namespace modAllPurpose
