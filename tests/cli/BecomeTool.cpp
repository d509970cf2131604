// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/BecomeTool.h"

#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

namespace tests {

int OutputFile(const std::filesystem::path& path) {
  constexpr mode_t kFileMode = 0600;
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, kFileMode);
  if (descriptor < 0) throw std::runtime_error("cannot write " + path.string());
  return descriptor;
}

void BecomeTool(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
                int out, int err) {
  constexpr int kCannotRun = 127;
  ::dup2(out, STDOUT_FILENO);
  ::dup2(err, STDERR_FILENO);
  if (!folder.empty() && ::chdir(folder.c_str()) != 0) ::_exit(kCannotRun);
  std::string program = VANTREL_REPORT_TOOL;
  std::vector<std::string> words = arguments;
  std::vector<char*> argv = {program.data()};
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  ::execv(program.c_str(), argv.data());
  ::_exit(kCannotRun);
}

}  // namespace tests
