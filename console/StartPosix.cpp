// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <csignal>

#include "console/Start.h"

namespace console {

std::vector<std::string> Arguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

std::vector<std::string> WithoutWildcards(const std::string& file) { return {file}; }

void PrepareOutput() {
  // A closed pipe is met as a failed write, so that the tool ends in its own way.
  std::signal(SIGPIPE, SIG_IGN);
  // A file that would grow over its limit is met as a failed write, like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
}

void ForgetErrors() { errno = 0; }

bool IsOutputClosed() { return errno == EPIPE; }

}  // namespace console
