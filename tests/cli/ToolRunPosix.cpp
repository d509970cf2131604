// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <fcntl.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/TestTrials.h"
#include "tests/cli/BecomeTool.h"
#include "tests/cli/ToolRun.h"

namespace tests {

namespace {

constexpr int kCannotRun = 127;

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

}  // namespace

ToolResult RunTool(const std::vector<std::string>& arguments, const ToolSurroundings& surroundings,
                   const std::filesystem::path& folder) {
  const TemporaryFolder own;
  const std::string collected = (own / "out").string();
  const std::string complaints = (own / "err").string();
  const int out = surroundings.ClosedPipe
                      ? PipeWithoutReader()
                      : OutputFile(surroundings.Path.empty() ? collected : surroundings.Path);
  const int err = surroundings.ClosedErrorPipe ? PipeWithoutReader() : OutputFile(complaints);
  const ToolCommand command(arguments, folder);
  const pid_t child = ::fork();
  if (child == 0) {
    LimitMemory(surroundings.MostMemory);
    if (surroundings.NoStreams) command.BecomeWithoutStreams();
    command.Become(out, err);
  }
  ::close(out);
  ::close(err);
  int status = 0;
  ::waitpid(child, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadWholeFile(collected),
          ReadWholeFile(complaints)};
}

}  // namespace tests
