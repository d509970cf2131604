#include <csignal>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "cli/CommandLine.h"
#include "cli/RunReports.h"

int main(int argc, char* argv[]) {
#ifdef SIGPIPE
  // A closed pipe is met as a failed write, so that the tool ends in its own way.
  std::signal(SIGPIPE, SIG_IGN);
#endif
#ifdef SIGXFSZ
  // A file that would grow over its limit is met as a failed write, like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
#endif
  auto parsed = cli::ParseCommandLine(std::vector<std::string>(argv + 1, argv + argc));
  if (const int* status = std::get_if<int>(&parsed)) return *status;
  return cli::RunReports(std::get<cli::Request>(std::move(parsed)));
}
