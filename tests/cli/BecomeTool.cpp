// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/BecomeTool.h"

#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>
#include <utility>

namespace tests {

int OutputFile(const std::filesystem::path& path) {
  constexpr mode_t kFileMode = 0600;
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, kFileMode);
  if (descriptor < 0) throw std::runtime_error("cannot write " + path.string());
  return descriptor;
}

ToolCommand::ToolCommand(std::vector<std::string> arguments, std::filesystem::path folder)
    : words_(std::move(arguments)), folder_(std::move(folder)) {
  words_.insert(words_.begin(), VANTREL_REPORT_TOOL);
  for (std::string& word : words_) argv_.push_back(word.data());
  argv_.push_back(nullptr);
}

void ToolCommand::Become(int out, int err) const {
  ::dup2(out, STDOUT_FILENO);
  ::dup2(err, STDERR_FILENO);
  Become();
}

void ToolCommand::BecomeWithoutStreams() const {
  ::close(STDIN_FILENO);
  ::close(STDOUT_FILENO);
  ::close(STDERR_FILENO);
  Become();
}

void ToolCommand::Become() const {
  constexpr int kCannotRun = 127;
  if (!folder_.empty() && ::chdir(folder_.c_str()) != 0) ::_exit(kCannotRun);
  ::execv(argv_.front(), argv_.data());
  ::_exit(kCannotRun);
}

}  // namespace tests
