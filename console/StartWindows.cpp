// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <shlwapi.h>
#include <windows.h>

#include "console/Start.h"
#include "support/FileSystem.h"
#include "support/Interruption.h"
#include "support/WindowsError.h"
#include "support/WindowsHandle.h"
#include "support/WindowsText.h"

namespace console {

namespace {

// The user's console, whose code page is put back when the tool ends, by itself or by its user.
UINT codePageBefore = 0;

void RestoreCodePage() { ::SetConsoleOutputCP(codePageBefore); }

BOOL WINAPI RestoreWhenInterrupted(DWORD /*event*/) {
  RestoreCodePage();
  constexpr BOOL kGoOnEnding = FALSE;
  return kGoOnEnding;
}

bool Fits(const wchar_t* name, const std::wstring& pattern) {
  return ::PathMatchSpecExW(name, pattern.c_str(), PMSF_NORMAL | PMSF_DONT_STRIP_SPACES) == S_OK;
}

// Whether the system found the file by its short name alone: "a.c3d_old" for "*.c3d".
bool FitsInShort(const WIN32_FIND_DATAW& found, const std::wstring& pattern) {
  return Fits(&found.cAlternateFileName[0], pattern) && !Fits(&found.cFileName[0], pattern);
}

bool IsConsole(DWORD output) {
  DWORD mode = 0;
  return ::GetConsoleMode(::GetStdHandle(output), &mode) != 0;
}

HANDLE HandleOf(std::FILE* stream) {
  return reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
}

bool IsFile(std::FILE* stream) { return ::GetFileType(HandleOf(stream)) == FILE_TYPE_DISK; }

bool Write(std::FILE* stream, std::string_view piece) {
  return std::fwrite(piece.data(), 1, piece.size(), stream) == piece.size() &&
         std::fflush(stream) == 0;
}

}  // namespace

std::vector<std::string> WithoutWildcards(const std::string& file) {
  const auto nameStart = file.find_last_of("/\\:") + 1;
  if (file.find_first_of("*?", nameStart) == std::string::npos) return {file};
  WIN32_FIND_DATAW found{};
  const modAllPurpose::OpenSearch search(
      ::FindFirstFileW(modAllPurpose::NativePath(file).c_str(), &found));
  if (search.get() == INVALID_HANDLE_VALUE) {
    const DWORD failure = ::GetLastError();
    if (failure == ERROR_FILE_NOT_FOUND || failure == ERROR_PATH_NOT_FOUND) return {file};
    throw modAllPurpose::LastFileError();
  }
  std::vector<std::string> files;
  const std::wstring pattern = modAllPurpose::Utf16Text(file.substr(nameStart));
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) continue;
    if (FitsInShort(found, pattern)) continue;
    files.push_back(file.substr(0, nameStart) + modAllPurpose::Utf8Text(&found.cFileName[0]));
  } while (::FindNextFileW(search.get(), &found) != 0);
  if (::GetLastError() != ERROR_NO_MORE_FILES) throw modAllPurpose::LastFileError();
  if (files.empty()) return {file};
  std::ranges::sort(files);
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

// Files are opened by handles, of which there are millions.
void AllowManyOpenFiles() {}

bool IsTerminal(std::FILE* stream) { return ::_isatty(::_fileno(stream)) != 0; }

int TerminalColumns(std::FILE* stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  return ::GetConsoleScreenBufferInfo(HandleOf(stream), &info) != 0 ? info.dwSize.X : 0;
}

bool WriteLines(std::FILE* stream, std::string_view piece) {
  errno = 0;
  _doserrno = 0;
  if (IsFile(stream)) return Write(stream, piece);
  const modAllPurpose::InterruptibleWait wait;
  return Write(stream, piece);
}

bool IsOutputClosed() {
  return errno == EPIPE || _doserrno == ERROR_NO_DATA || _doserrno == ERROR_BROKEN_PIPE ||
         _doserrno == ERROR_PIPE_NOT_CONNECTED;
}

}  // namespace console
