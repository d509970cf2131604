#include "tests/cli/ToolInFolder.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tests {

namespace {

// Puts a new file at `path` in the place of the stream `descriptor`.
bool SendTo(const std::string& path, int descriptor) {
  constexpr mode_t kOwnerReadsAndWrites = 0600;
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, kOwnerReadsAndWrites);
  return file >= 0 && dup2(file, descriptor) >= 0;
}

}  // namespace

ToolInFolder::ToolInFolder() {
  std::filesystem::copy_file(VANTREL_SAMPLE_WALK, folder_ / kSampleWalk);
}

ToolRun ToolInFolder::Run(const std::vector<std::string>& arguments) const {
  const std::string output = (streams_ / "output").string();
  const std::string errors = (streams_ / "errors").string();
  std::vector<std::string> words = {VANTREL_REPORT_TOOL};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);

  const pid_t child = fork();
  if (child == 0) {
    if (chdir(Path().c_str()) == 0 && SendTo(output, STDOUT_FILENO) &&
        SendTo(errors, STDERR_FILENO)) {
      execv(argv[0], argv.data());
    }
    _exit(127);
  }
  int status = 0;
  const bool exited = child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status);
  return {exited ? WEXITSTATUS(status) : -1, ReadWholeFile(output), ReadWholeFile(errors)};
}

}  // namespace tests
