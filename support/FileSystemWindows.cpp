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

// The system itself is asked here rather than the library, which does not know the paths that begin
// "\\server" or "\\?".
namespace modAllPurpose {

namespace fs = std::filesystem;

namespace {

// What a conversion of the system makes: the characters in whatever place it is told to fill. The
// first call only counts them.
template <typename Text, typename Convert>
Text Converted(bool isEmpty, Convert&& convert) {
  if (isEmpty) return {};
  Text text(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  if (text.empty()) throw RuntimeError(ErrorNumber::PathFileAccessError);
  convert(text.data(), static_cast<int>(text.size()));
  return text;
}

// `path` as it leads to the file from any folder; empty where the system cannot tell.
std::wstring Whole(const std::wstring& path) {
  std::wstring whole(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  const DWORD length =
      ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr);
  whole.resize(length < whole.size() ? length : 0);
  return whole;
}

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

fs::path NativePath(const std::string& utf8Path) {
  return Converted<std::wstring>(utf8Path.empty(), [&](wchar_t* into, int size) {
    return ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8Path.data(),
                                 static_cast<int>(utf8Path.size()), into, size);
  });
}

std::string Utf8Path(const fs::path& nativePath) {
  const std::wstring& native = nativePath.native();
  return Converted<std::string>(native.empty(), [&](char* into, int size) {
    return ::WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, native.data(),
                                 static_cast<int>(native.size()), into, size, nullptr, nullptr);
  });
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
  const std::wstring whole = Whole(NativePath(path));
  return whole.empty() ? path : Utf8Path(whole);
}

std::string OneSpelling(const std::string& path) {
  std::wstring whole = Whole(NativePath(path));
  if (whole.empty()) return path;
  ::CharUpperBuffW(whole.data(), static_cast<DWORD>(whole.size()));
  return Utf8Path(whole);
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
