// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/DesktopCopy.h"

#include <cerrno>

#include "support/FileSystem.h"
#include "support/RuntimeError.h"

namespace app {

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;

namespace {

std::FILE* Create(const std::string& path) {
#ifdef _WIN32
  return _wfopen(modAllPurpose::NativePath(path).c_str(), L"wb");
#else
  return std::fopen(modAllPurpose::NativePath(path).c_str(), "wb");
#endif
}

RuntimeError ErrorOfCreate(const std::string& path, int systemError) {
  // A file that is to be made is missing its folder, not itself.
  if (systemError == ENOENT) return RuntimeError(ErrorNumber::PathNotFound);
  // Windows says of a folder in its place what it says of a file that nobody may write.
  if (modAllPurpose::IsFolder(path)) return RuntimeError(ErrorNumber::PathFileAccessError);
  return modAllPurpose::FileErrorFromErrno(systemError);
}

void Put(std::string_view text, std::FILE* file) {
  errno = 0;
  if (std::fwrite(text.data(), 1, text.size(), file) != text.size()) {
    throw modAllPurpose::FileErrorFromErrno(errno);
  }
}

}  // namespace

void DesktopCopy::Open(const std::string& path) {
  Close();
  errno = 0;
  file_.reset(Create(path));
  if (file_ != nullptr) return;
  throw ErrorOfCreate(path, errno);
}

void DesktopCopy::Write(std::string_view text, bool continueLine) {
  if (file_ == nullptr) return;
  Put(text, file_.get());
  if (!continueLine) Put("\r\n", file_.get());
}

void DesktopCopy::Flush() {
  if (file_ == nullptr) return;
  errno = 0;
  if (std::fflush(file_.get()) != 0) throw modAllPurpose::FileErrorFromErrno(errno);
}

void DesktopCopy::Close() {
  if (file_ == nullptr) return;
  errno = 0;
  if (std::fclose(file_.release()) != 0) throw modAllPurpose::FileErrorFromErrno(errno);
}

}  // namespace app
