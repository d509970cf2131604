// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <optional>
#include <windows.h>

#include "cli/Start.h"
#include "cli/Wildcards.h"
#include "support/FileSystem.h"
#include "support/WindowsError.h"

namespace cli {

namespace {

// What the system finds for a pattern.
class Search {
 public:
  explicit Search(const std::wstring& pattern)
      : handle_(::FindFirstFileW(pattern.c_str(), &found_)) {
    if (handle_ != INVALID_HANDLE_VALUE) return;
    const DWORD failure = ::GetLastError();
    isAtEnd_ = failure == ERROR_FILE_NOT_FOUND || failure == ERROR_PATH_NOT_FOUND;
    if (!isAtEnd_) throw modAllPurpose::LastFileError();
  }
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;
  ~Search() {
    if (handle_ != INVALID_HANDLE_VALUE) ::FindClose(handle_);
  }

  // The entries one by one, as a FolderListing.
  std::optional<FolderEntry> Next() {
    if (!isFirst_ && !isAtEnd_ && ::FindNextFileW(handle_, &found_) == 0) {
      isAtEnd_ = ::GetLastError() == ERROR_NO_MORE_FILES;
      if (!isAtEnd_) throw modAllPurpose::LastFileError();
    }
    isFirst_ = false;
    if (isAtEnd_) return std::nullopt;
    return FolderEntry{&found_.cFileName[0],
                       (found_.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0};
  }

 private:
  WIN32_FIND_DATAW found_{};
  bool isFirst_ = true;
  bool isAtEnd_ = false;
  HANDLE handle_;
};

wchar_t UpperCase(wchar_t letter) {
  ::CharUpperBuffW(&letter, 1);
  return letter;
}

// `text` in UTF-8, with a mark in place of what is no UTF-16.
std::string Utf8(const wchar_t* text) {
  const auto convert = [&](char* into, int size) {
    return ::WideCharToMultiByte(CP_UTF8, 0, text, -1, into, size, nullptr, nullptr);
  };
  std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(utf8.data(), static_cast<int>(utf8.size()));
  return utf8.substr(0, utf8.find('\0'));  // without the NUL at the end
}

// The user's console, whose code page is put back when the tool ends, by itself or by its user.
UINT codePageBefore = 0;

void RestoreCodePage() { ::SetConsoleOutputCP(codePageBefore); }

BOOL WINAPI RestoreWhenInterrupted(DWORD /*event*/) {
  RestoreCodePage();
  constexpr BOOL kGoOnEnding = FALSE;
  return kGoOnEnding;
}

bool IsConsole(DWORD output) {
  DWORD mode = 0;
  return ::GetConsoleMode(::GetStdHandle(output), &mode) != 0;
}

}  // namespace

// main's own arguments are in the code page of the system, which cannot name every file.
std::vector<std::string> Arguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int k = 1; k < count; ++k) arguments.push_back(Utf8(words[k]));
  ::LocalFree(words);
  return arguments;
}

std::vector<std::string> WithoutWildcards(const std::string& file) {
  if (!HasWildcard(file)) return {file};
  const std::wstring path = modAllPurpose::NativePath(file);
  const auto nameStart = path.find_last_of(L"/\\:") + 1;
  Search search(path);
  std::vector<std::string> files;
  for (const std::wstring& name : FilesThatFit(
           path.substr(nameStart), [&] { return search.Next(); }, UpperCase)) {
    files.push_back(Utf8((path.substr(0, nameStart) + name).c_str()));
  }
  if (files.empty()) files.push_back(file);
  return files;
}

void PrepareOutput() {
  ::_setmode(::_fileno(stdout), _O_BINARY);
  ::_setmode(::_fileno(stderr), _O_BINARY);
  if (!IsConsole(STD_OUTPUT_HANDLE) && !IsConsole(STD_ERROR_HANDLE)) return;
  codePageBefore = ::GetConsoleOutputCP();
  ::SetConsoleOutputCP(CP_UTF8);
  std::atexit(RestoreCodePage);
  ::SetConsoleCtrlHandler(RestoreWhenInterrupted, TRUE);
}

void ForgetErrors() {
  errno = 0;
  _doserrno = 0;
}

bool IsOutputClosed() {
  return errno == EPIPE || _doserrno == ERROR_NO_DATA || _doserrno == ERROR_BROKEN_PIPE ||
         _doserrno == ERROR_PIPE_NOT_CONNECTED;
}

}  // namespace cli
