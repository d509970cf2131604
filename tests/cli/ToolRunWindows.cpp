// SPDX-License-Identifier: GPL-3.0-or-later

#include <stdexcept>
#include <windows.h>

#include "support/FileSystem.h"
#include "support/WindowsText.h"
#include "tests/TestTrials.h"
#include "tests/cli/ToolRun.h"

namespace tests {

namespace {

// A handle that the tool may inherit, closed at the end.
class Inherited {
 public:
  explicit Inherited(HANDLE handle) : handle_(handle) {
    if (handle == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot redirect the tool");
    ::SetHandleInformation(handle, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
  }
  Inherited(const Inherited&) = delete;
  Inherited& operator=(const Inherited&) = delete;
  ~Inherited() { ::CloseHandle(handle_); }

  HANDLE Handle() const { return handle_; }

 private:
  HANDLE handle_;
};

HANDLE OpenForWriting(const std::string& path) {
  return ::CreateFileW(modAllPurpose::NativePath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                       nullptr, OPEN_ALWAYS, 0, nullptr);
}

HANDLE PipeWithoutReader() {
  HANDLE reading = nullptr;
  HANDLE writing = nullptr;
  if (::CreatePipe(&reading, &writing, nullptr, 0) == 0) return INVALID_HANDLE_VALUE;
  ::CloseHandle(reading);
  return writing;
}

// `word` in quotes, so that a program finds it again in its command line.
std::wstring Quoted(const std::string& word) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t letter : modAllPurpose::Utf16Text(word)) {
    if (letter == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = letter == L'\\' ? backslashes + 1 : 0;
    quoted += letter;
  }
  return quoted.append(backslashes, L'\\') + L'"';
}

// Runs the tool to its end and returns its exit status.
int Run(const std::vector<std::string>& arguments, const std::filesystem::path& folder, HANDLE out,
        HANDLE err) {
  const std::filesystem::path tool = std::filesystem::absolute(VANTREL_REPORT_TOOL);
  std::wstring commandLine = L"vantrel-report";
  for (const std::string& argument : arguments) commandLine += L' ' + Quoted(argument);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
  start.hStdOutput = out;
  start.hStdError = err;
  PROCESS_INFORMATION process{};
  const auto isStarted = [&] {
    return ::CreateProcessW(tool.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                            folder.empty() ? nullptr : folder.c_str(), &start, &process) != 0;
  };
  // On a machine that is busy Wine may not manage at once.
  for (int tries = 3; !isStarted(); ::Sleep(1000)) {
    if (--tries == 0) {
      throw std::runtime_error("cannot start the tool: " + std::to_string(::GetLastError()));
    }
  }
  ::WaitForSingleObject(process.hProcess, INFINITE);
  DWORD status = 0;
  ::GetExitCodeProcess(process.hProcess, &status);
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return static_cast<int>(status);
}

}  // namespace

ToolResult RunTool(const std::vector<std::string>& arguments, const ToolSurroundings& surroundings,
                   const std::filesystem::path& folder) {
  const TemporaryFolder own;
  const std::string collected = modAllPurpose::Utf8Path(own / "out");
  const std::string complaints = modAllPurpose::Utf8Path(own / "err");
  int status = -1;
  {
    const Inherited out(
        surroundings.ClosedPipe
            ? PipeWithoutReader()
            : OpenForWriting(surroundings.Path.empty() ? collected : surroundings.Path));
    const Inherited err(surroundings.ClosedErrorPipe ? PipeWithoutReader()
                                                     : OpenForWriting(complaints));
    status = Run(arguments, folder, out.Handle(), err.Handle());
  }
  return {status, ReadWholeFile(collected), ReadWholeFile(complaints)};
}

}  // namespace tests
