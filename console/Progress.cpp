// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/Progress.h"

#include <algorithm>

#include <fmt/format.h>

#include "console/Start.h"

namespace console {

namespace {

constexpr std::chrono::milliseconds kBetweenDrawings{200};
constexpr std::chrono::seconds kBeforeGuessing{1};

std::string DurationText(std::chrono::seconds duration) {
  const auto seconds = duration.count();
  if (seconds >= 3600) {
    return fmt::format("{}:{:02}:{:02}", seconds / 3600, seconds / 60 % 60, seconds % 60);
  }
  return fmt::format("{}:{:02}", seconds / 60, seconds % 60);
}

}  // namespace

std::string ProgressText(std::size_t done, std::size_t count, std::size_t failed,
                         std::chrono::steady_clock::duration sinceStart) {
  std::string text = fmt::format("{} of {} files", done, count);
  if (failed > 0) text += fmt::format(", {} failed", failed);
  if (done == 0 || sinceStart < kBeforeGuessing) return text;
  const std::chrono::duration<double> elapsed = sinceStart;
  const auto left = elapsed * (static_cast<double>(count - done) / static_cast<double>(done));
  return text +
         fmt::format(", {} left", DurationText(std::chrono::ceil<std::chrono::seconds>(left)));
}

Progress::Progress(std::FILE* stream, std::size_t count)
    : stream_(stream), count_(count), isShown_(count > 1 && IsTerminal(stream)) {}

void Progress::Count(bool failed) {
  ++done_;
  if (failed) ++failed_;
}

void Progress::Refresh() {
  if (!isShown_ || Clock::now() < next_) return;
  next_ = Clock::now() + kBetweenDrawings;
  std::string text = ProgressText(done_, count_, failed_, Clock::now() - start_);
  // The last column stays free: behind it, or in a further row, nothing would lead back.
  const auto columns = static_cast<std::size_t>(TerminalColumns(stream_));
  if (columns > 0 && text.size() >= columns) text.resize(columns - 1);
  WriteLines(stream_, fmt::format("\r{:<{}}", text, width_));
  width_ = text.size();
}

void Progress::Hide() {
  if (width_ == 0) return;
  WriteLines(stream_, fmt::format("\r{:{}}\r", "", width_));
  width_ = 0;
  next_ = Clock::now();
}

}  // namespace console
