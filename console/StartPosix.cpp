// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <chrono>
#include <csignal>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
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

// Whether an interruption has waited long enough for readers, since this was first asked.
bool IsPatienceOver() {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::seconds kPatience{1};
  static const Clock::time_point since = Clock::now();
  return Clock::now() - since > kPatience;
}

// An interruption waits for a reader who is slow, so that what is printed ends well, but not for
// one who does not read.
void AwaitReader(int file) {
  constexpr int kMoment = 50;
  pollfd readiness{file, POLLOUT, 0};
  while (::poll(&readiness, 1, kMoment) <= 0) {
    if (!modAllPurpose::UnbrokenWork::IsInterrupted() || !IsPatienceOver()) continue;
    const modAllPurpose::InterruptibleWait end;
  }
}

// Also where another program made the pipe or terminal one that takes what it can and no more.
bool WriteAll(int file, std::string_view chunk) {
  while (!chunk.empty()) {
    AwaitReader(file);
    const ssize_t taken = ::write(file, chunk.data(), chunk.size());
    if (taken < 0 && errno != EAGAIN && errno != EINTR) return false;
    if (taken > 0) chunk.remove_prefix(static_cast<std::size_t>(taken));
  }
  return true;
}

}  // namespace

std::vector<std::string> WithoutWildcards(const std::string& file) { return {file}; }

void PrepareOutput() {
  // A closed pipe is met as a failed write, so that the tool ends in its own way.
  std::signal(SIGPIPE, SIG_IGN);
  // A file that would grow over its limit is met as a failed write, like a full disk.
  std::signal(SIGXFSZ, SIG_IGN);
}

void AllowManyOpenFiles() {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
  limit.rlim_cur = limit.rlim_max;
  ::setrlimit(RLIMIT_NOFILE, &limit);
}

bool IsTerminal(std::FILE* stream) { return ::isatty(::fileno(stream)) == 1; }

int TerminalColumns(std::FILE* stream) {
  winsize size{};
  return ::ioctl(::fileno(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

bool WriteLines(std::FILE* stream, std::string_view piece) {
  errno = 0;
  if (IsRegular(stream)) return Write(stream, piece);
  if (std::fflush(stream) != 0) return false;
  while (!piece.empty()) {
    const std::string_view chunk = NextChunk(piece);
    if (!WriteAll(::fileno(stream), chunk)) return false;
    piece.remove_prefix(chunk.size());
  }
  return true;
}

bool IsOutputClosed() { return errno == EPIPE; }

}  // namespace console
