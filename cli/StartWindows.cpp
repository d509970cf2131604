#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "cli/Start.h"

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
