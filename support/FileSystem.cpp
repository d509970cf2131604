#include "support/FileSystem.h"

#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>
#include <utility>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#endif

#include <fmt/format.h>

#include "support/RuntimeError.h"

namespace modAllPurpose {

namespace {

#ifdef _WIN32
std::FILE* CreateNew(const std::filesystem::path& path) {
  const int descriptor =
      _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
  return descriptor < 0 ? nullptr : _fdopen(descriptor, "wb");
}
std::FILE* OpenToChange(const std::filesystem::path& path) { return _wfopen(path.c_str(), L"r+b"); }
#else
std::FILE* CreateNew(const std::filesystem::path& path) { return std::fopen(path.c_str(), "wbx"); }
std::FILE* OpenToChange(const std::filesystem::path& path) {
  return std::fopen(path.c_str(), "r+b");
}
#endif

// Replacing a file needs no right to write it, so that right is asked for here.
void RequireWritable(const std::filesystem::path& path) {
  std::FILE* file = OpenToChange(path);
  if (file == nullptr) throw FileErrorFromErrno(errno);
  std::fclose(file);
}

// A file of a new name in a folder, removed again unless it takes another's place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& folder) {
    constexpr int kAttempts = 100;
    std::random_device random;
    for (int i = 0; i < kAttempts && file_ == nullptr; ++i) {
      path_ = folder / fmt::format(".vantrel-{:08x}.tmp", random());
      errno = 0;
      file_ = CreateNew(path_);
      if (file_ == nullptr && errno != EEXIST) break;
    }
    // A new file that cannot be found means that its folder is not there.
    if (file_ == nullptr && errno == ENOENT) throw RuntimeError(ErrorNumber::PathNotFound);
    if (file_ == nullptr) throw FileErrorFromErrno(errno);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  ~TemporaryFile() {
    if (file_ != nullptr) std::fclose(file_);
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

  void Write(std::string_view text) {
    errno = 0;
    const bool written = std::fwrite(text.data(), 1, text.size(), file_) == text.size();
    const int writeError = errno;
    const bool closed = std::fclose(std::exchange(file_, nullptr)) == 0;
    if (!written) throw FileErrorFromErrno(writeError);
    if (!closed) throw FileErrorFromErrno(errno);
  }

  void TakePlaceOf(const std::filesystem::path& target) {
    std::error_code failure;
    std::filesystem::rename(path_, target, failure);
    if (failure) throw FileErrorFromCode(failure);
    path_.clear();
  }

 private:
  std::filesystem::path path_;
  std::FILE* file_ = nullptr;
};

}  // namespace

std::filesystem::path NativePath(const std::string& utf8Path) {
#ifdef _WIN32
  return std::filesystem::path(std::u8string(utf8Path.begin(), utf8Path.end()));
#else
  return utf8Path;
#endif
}

std::string Utf8Path(const std::filesystem::path& nativePath) {
#ifdef _WIN32
  const std::u8string text = nativePath.u8string();
  return {text.begin(), text.end()};
#else
  return nativePath.string();
#endif
}

bool FileExists(const std::string& path) {
  std::error_code failure;
  const auto status = std::filesystem::status(NativePath(path), failure);
  return !failure && std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

void WriteFileInOneStep(const std::string& path, std::string_view text) {
  namespace fs = std::filesystem;
  std::error_code ignored;
  fs::path target = NativePath(path);
  const bool exists = fs::exists(target, ignored);
  if (exists) {
    RequireWritable(target);
    target = fs::canonical(target, ignored);
  }
  TemporaryFile temporary(target.parent_path());
  temporary.Write(text);
  if (exists) fs::permissions(temporary.Path(), fs::status(target, ignored).permissions(), ignored);
  temporary.TakePlaceOf(target);
}

}  // namespace modAllPurpose
