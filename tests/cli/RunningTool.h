// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

#include "tests/TestTrials.h"

namespace tests {

// The built vantrel-report while it runs, its output into files.
class RunningTool {
 public:
  // Where the output goes: into a file, into a pipe that nobody reads, or to a terminal that also
  // takes what it complains of.
  enum class Output { File, UnreadPipe, Terminal };

  // Runs in `folder`, the current one where it is empty.
  RunningTool(const std::vector<std::string>& arguments, Output output,
              const std::filesystem::path& folder = {});
  RunningTool(const RunningTool&) = delete;
  RunningTool& operator=(const RunningTool&) = delete;
  ~RunningTool();

  void Send(int signal) const;

  // Waits for the end: the number of the signal that ended it, 0 for none.
  int Wait();

  // Waits until so much of the output is there, or the tool has ended.
  void AwaitOutput(std::size_t bytes) const;

  // What it has printed by now; of a terminal with all that it was told.
  std::string Out() const;
  std::string Err() const;

 private:
  void ReadTerminal();

  TemporaryFolder folder_;
  pid_t child_ = -1;
  int status_ = 0;
  int readEnd_ = -1;  // of the pipe or the terminal
  std::string shown_;
};

}  // namespace tests
