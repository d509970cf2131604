// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
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
  // takes what it complains of, which may have rows of 20 characters or fail what it cannot take at
  // once. What is complained of may instead be what nobody reads.
  enum class Output {
    File,
    UnreadPipe,
    Terminal,
    NarrowTerminal,
    ImpatientTerminal,
    FileAndUnreadErrors
  };

  // Runs in `folder`, the current one where it is empty.
  RunningTool(const std::vector<std::string>& arguments, Output output,
              const std::filesystem::path& folder = {});
  RunningTool(const RunningTool&) = delete;
  RunningTool& operator=(const RunningTool&) = delete;
  ~RunningTool();

  void Send(int signal) const;

  // Waits for the end: the number of the signal that ended it, 0 for none. Reads meanwhile what a
  // terminal is told.
  int Wait();
  // The same where no terminal is to be read; it is killed where it does not end for so long.
  int WaitAtMost(std::chrono::milliseconds time);

  // What it prints into a pipe that nobody has read, read slowly to its end.
  std::string ReadSlowly() const;

  // Waits until so much of the output is there, or the tool has ended.
  void AwaitOutput(std::size_t bytes) const;

  // What it has printed by now; to a terminal what Wait read, with what it was told besides.
  std::string Out() const;
  std::string Err() const;

 private:
  // Gives the tool, in place of one of its outputs, what is no file.
  void Replace(int& output, Output by);
  void ReadTerminal();

  TemporaryFolder folder_;
  pid_t child_ = -1;
  int status_ = 0;
  int readEnd_ = -1;  // of the pipe or the terminal
  bool isTerminal_ = false;
  std::string shown_;
};

}  // namespace tests
