// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tests {

// Opens a new file for writing; an existing file or device stays what it is. For the output of a
// process.
int OutputFile(const std::filesystem::path& path);

// The command line of the built vantrel-report, made before the fork: behind it a child of a
// process with several threads may not ask for memory, since a lock of the heap may be held for
// ever.
class ToolCommand {
 public:
  // In `folder`, the current one where it is empty.
  ToolCommand(std::vector<std::string> arguments, std::filesystem::path folder);
  ToolCommand(const ToolCommand&) = delete;
  ToolCommand& operator=(const ToolCommand&) = delete;
  ~ToolCommand() = default;

  // Makes this process, a child of the test, the tool, with its output in those files. Ends with
  // 127 where that fails.
  [[noreturn]] void Become(int out, int err) const;
  // The same with no output at all and no input.
  [[noreturn]] void BecomeWithoutStreams() const;

 private:
  [[noreturn]] void Become() const;

  std::vector<std::string> words_;
  std::vector<char*> argv_;  // the words, and behind them a null
  std::filesystem::path folder_;
};

}  // namespace tests
