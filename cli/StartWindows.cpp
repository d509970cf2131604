#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "cli/Start.h"
#include "support/FileSystem.h"

namespace cli {

namespace {

std::string Utf8(const wchar_t* text) {
  const auto convert = [&](char* into, int size) {
    return ::WideCharToMultiByte(CP_UTF8, 0, text, -1, into, size, nullptr, nullptr);
  };
  std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(utf8.data(), static_cast<int>(utf8.size()));
  utf8.pop_back();  // the NUL at the end
  return utf8;
}

// The files whose names fit `pattern`, in the order of their names.
std::vector<std::string> Matches(const std::string& pattern) {
  std::vector<std::string> matches;
  const std::string folder = pattern.substr(0, pattern.find_last_of("/\\:") + 1);
  WIN32_FIND_DATAW found{};
  const HANDLE search = ::FindFirstFileW(modAllPurpose::NativePath(pattern).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return matches;
  do {
    const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!isFolder) matches.push_back(folder + Utf8(&found.cFileName[0]));
  } while (::FindNextFileW(search, &found) != 0);
  ::FindClose(search);
  std::ranges::sort(matches);
  return matches;
}

}  // namespace

// main's own arguments are in the code page of the system, which cannot name every file.
std::vector<std::string> Arguments(int /*argc*/, char* /*argv*/[]) {
  int count = 0;
  wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int k = 1; k < count; ++k) arguments.push_back(Utf8(words[k]));
  ::LocalFree(words);
  return arguments;
}

std::vector<std::string> WithoutWildcards(const std::vector<std::string>& files) {
  std::vector<std::string> all;
  for (const std::string& file : files) {
    const bool isPattern = file.find_first_of("*?") != std::string::npos;
    const auto matches = isPattern ? Matches(file) : std::vector<std::string>();
    if (matches.empty()) all.push_back(file);
    all.insert(all.end(), matches.begin(), matches.end());
  }
  return all;
}

void PrepareOutput() {
  ::_setmode(::_fileno(stdout), _O_BINARY);
  ::_setmode(::_fileno(stderr), _O_BINARY);
  ::SetConsoleOutputCP(CP_UTF8);
}

bool IsOutputClosed() {
  return errno == EPIPE || _doserrno == ERROR_NO_DATA || _doserrno == ERROR_BROKEN_PIPE ||
         _doserrno == ERROR_PIPE_NOT_CONNECTED;
}

}  // namespace cli
