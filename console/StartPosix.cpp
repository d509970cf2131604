// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>

#include "console/Start.h"
#include "support/Interruption.h"

namespace console {

namespace {

bool IsRegular(std::FILE* stream) {
  struct stat file {};
  return ::fstat(::fileno(stream), &file) == 0 && S_ISREG(file.st_mode);
}

bool Write(std::FILE* stream, std::string_view piece) {
  return std::fwrite(piece.data(), 1, piece.size(), stream) == piece.size() &&
         std::fflush(stream) == 0;
}

// The whole lines in front of `text` that a pipe takes at once or not at all; as much of a line
// that is longer.
std::string_view NextChunk(std::string_view text) {
  if (text.size() <= PIPE_BUF) return text;
  const auto end = text.substr(0, PIPE_BUF).rfind('\n');
  return text.substr(0, end == std::string_view::npos ? PIPE_BUF : end + 1);
}

void AwaitReader(int file) {
  pollfd readiness{file, POLLOUT, 0};
  if (::poll(&readiness, 1, 0) != 0) return;
  const modAllPurpose::InterruptibleWait wait;
  ::poll(&readiness, 1, -1);
}

}  // namespace

std::vector<std::string> Arguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

std::vector<std::string> WithoutWildcards(const std::string& file) { return {file}; }

void PrepareOutput() {
  // A closed pipe is met as a failed write, so that the tool ends in its own way.
  std::signal(SIGPIPE, SIG_IGN);
  // A file that would grow over its limit is met as a failed write, like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
}

bool IsTerminal(std::FILE* stream) { return ::isatty(::fileno(stream)) == 1; }

bool WriteLines(std::FILE* stream, std::string_view piece) {
  errno = 0;
  if (IsRegular(stream)) return Write(stream, piece);
  while (!piece.empty()) {
    const std::string_view chunk = NextChunk(piece);
    AwaitReader(::fileno(stream));
    if (!Write(stream, chunk)) return false;
    piece.remove_prefix(chunk.size());
  }
  return true;
}

bool IsOutputClosed() { return errno == EPIPE; }

}  // namespace console
