// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <string>

namespace console {

// What a line of progress says: "1204 of 9876 files, 3 failed, 0:42 left". The time is left out
// while too little is done to tell it.
std::string ProgressText(std::size_t done, std::size_t count, std::size_t failed,
                         std::chrono::steady_clock::duration sinceStart);

// A line on a terminal that says how far a run over several files is, drawn anew in its place. On
// anything but a terminal, and for a single file, there is none.
class Progress {
 public:
  // `stream` must last as long.
  Progress(std::FILE* stream, std::size_t count);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { Hide(); }

  void Count(bool failed);
  // Draws the line where the last one is old.
  void Refresh();
  // Makes room for other lines.
  void Hide();

 private:
  using Clock = std::chrono::steady_clock;

  std::FILE* stream_;
  std::size_t count_;
  bool isShown_;  // ever
  std::size_t done_ = 0;
  std::size_t failed_ = 0;
  std::size_t width_ = 0;  // of the line that stands there
  Clock::time_point start_ = Clock::now();
  Clock::time_point next_ = start_;
};

}  // namespace console
