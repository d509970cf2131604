// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <fcntl.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/TestTrials.h"
#include "tests/cli/ToolRun.h"

namespace tests {

namespace {

constexpr mode_t kFileMode = 0600;
constexpr int kCannotRun = 127;

int OpenForWriting(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, kFileMode);
  if (descriptor < 0) throw std::runtime_error("cannot write " + path);
  return descriptor;
}

int PipeWithoutReader() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("cannot make a pipe");
  ::close(ends[0]);
  return ends[1];
}

void LimitMemory(std::size_t bytes) {
  const rlimit limit{bytes, bytes};
  if (bytes > 0 && ::setrlimit(RLIMIT_AS, &limit) != 0) ::_exit(kCannotRun);
}

// Becomes the tool; returns only where that fails.
void Become(const std::vector<std::string>& arguments, const std::filesystem::path& folder) {
  if (!folder.empty() && ::chdir(folder.c_str()) != 0) return;
  std::string program = VANTREL_REPORT_TOOL;
  std::vector<std::string> words = arguments;
  std::vector<char*> argv = {program.data()};
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  ::execv(program.c_str(), argv.data());
}

}  // namespace

ToolResult RunTool(const std::vector<std::string>& arguments, const ToolSurroundings& surroundings,
                   const std::filesystem::path& folder) {
  const TemporaryFolder own;
  const std::string collected = (own / "out").string();
  const std::string complaints = (own / "err").string();
  const int out = surroundings.ClosedPipe
                      ? PipeWithoutReader()
                      : OpenForWriting(surroundings.Path.empty() ? collected : surroundings.Path);
  const int err = surroundings.ClosedErrorPipe ? PipeWithoutReader() : OpenForWriting(complaints);
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(out, STDOUT_FILENO);
    ::dup2(err, STDERR_FILENO);
    LimitMemory(surroundings.MostMemory);
    Become(arguments, folder);
    ::_exit(kCannotRun);
  }
  ::close(out);
  ::close(err);
  int status = 0;
  ::waitpid(child, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadWholeFile(collected),
          ReadWholeFile(complaints)};
}

}  // namespace tests
