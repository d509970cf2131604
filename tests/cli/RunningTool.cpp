// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/RunningTool.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <pty.h>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "tests/cli/BecomeTool.h"

namespace tests {

namespace {

bool IsTerminal(RunningTool::Output output) {
  using enum RunningTool::Output;
  return output == Terminal || output == NarrowTerminal || output == ImpatientTerminal;
}

// The two ends of what is not a file: the one to read, and the one that the tool is given.
std::array<int, 2> EndsOf(RunningTool::Output output) {
  std::array<int, 2> ends{};
  winsize narrow{5, 20, 0, 0};
  winsize* const size = output == RunningTool::Output::NarrowTerminal ? &narrow : nullptr;
  const int failed = IsTerminal(output) ? ::openpty(ends.data(), &ends[1], nullptr, nullptr, size)
                                        : ::pipe2(ends.data(), O_CLOEXEC);
  if (failed != 0) throw std::runtime_error("cannot make a pipe or terminal");
  if (output == RunningTool::Output::ImpatientTerminal) ::fcntl(ends[1], F_SETFL, O_NONBLOCK);
  return ends;
}

}  // namespace

RunningTool::RunningTool(const std::vector<std::string>& arguments, Output output,
                         const std::filesystem::path& folder) {
  int out = OutputFile(folder_ / "out");
  int err = OutputFile(folder_ / "err");
  if (output != Output::File) Replace(output == Output::FileAndUnreadErrors ? err : out, output);
  if (IsTerminal(output)) ::close(std::exchange(err, ::dup(out)));
  const ToolCommand command(arguments, folder);
  child_ = ::fork();
  if (child_ == 0) command.Become(out, err);
  ::close(out);
  ::close(err);
  isTerminal_ = IsTerminal(output);
}

void RunningTool::Replace(int& output, Output by) {
  const auto ends = EndsOf(by);
  readEnd_ = ends[0];
  ::close(std::exchange(output, ends[1]));
}

RunningTool::~RunningTool() {
  if (child_ > 0) ::kill(child_, SIGKILL);
  Wait();
  if (readEnd_ >= 0) ::close(readEnd_);
}

// Until the tool closes its end.
void RunningTool::ReadTerminal() {
  std::array<char, 4096> piece{};
  for (ssize_t size = 1; size > 0;) {
    size = ::read(readEnd_, piece.data(), piece.size());
    if (size > 0) shown_.append(piece.data(), static_cast<std::size_t>(size));
  }
}

std::string RunningTool::ReadSlowly() const {
  std::string all;
  std::array<char, 4096> piece{};
  for (ssize_t size = 1; size > 0;) {
    size = ::read(readEnd_, piece.data(), piece.size());
    if (size > 0) all.append(piece.data(), static_cast<std::size_t>(size));
    std::this_thread::sleep_for(std::chrono::microseconds(500));
  }
  return all;
}

void RunningTool::Send(int signal) const { ::kill(child_, signal); }

int RunningTool::Wait() {
  if (isTerminal_ && child_ > 0) ReadTerminal();
  if (child_ > 0) ::waitpid(std::exchange(child_, -1), &status_, 0);
  return WIFSIGNALED(status_) ? WTERMSIG(status_) : 0;
}

int RunningTool::WaitAtMost(std::chrono::milliseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  siginfo_t ended{};
  while (ended.si_pid == 0 && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    ::waitid(P_PID, static_cast<id_t>(child_), &ended, WEXITED | WNOHANG | WNOWAIT);
  }
  if (ended.si_pid == 0) Send(SIGKILL);
  return Wait();
}

void RunningTool::AwaitOutput(std::size_t bytes) const {
  siginfo_t ended{};
  while (Out().size() < bytes && ended.si_pid == 0) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    ::waitid(P_PID, static_cast<id_t>(child_), &ended, WEXITED | WNOHANG | WNOWAIT);
  }
}

std::string RunningTool::Out() const {
  return shown_.empty() ? ReadWholeFile(folder_ / "out") : shown_;
}

std::string RunningTool::Err() const { return ReadWholeFile(folder_ / "err"); }

}  // namespace tests
