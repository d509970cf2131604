// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include "c3d/OpenC3dFile.h"
#include "sample/Trial.h"

namespace bench {

// A trial written to a folder of its own and opened; gone at the end of the program.
class BenchTrial {
 public:
  enum class Frames { Written, Hole };

  BenchTrial(const sample::Trial& trial, Frames frames, const modVantrel::EventSteps& findEvents)
      : folder_(std::filesystem::temp_directory_path() /
                ("vantrel-bench-" + std::to_string(::getpid()) + '-' + std::to_string(++made_))) {
    std::filesystem::create_directory(folder_);
    if (frames == Frames::Hole) {
      trial.WriteSparseTo(File());
    } else {
      trial.WriteTo(File());
    }
    if (modVantrel::OpenC3dFile(state_, File().string(), findEvents) !=
        modVantrel::OpenResult::Success) {
      throw std::runtime_error("the trial of a benchmark does not open");
    }
  }
  BenchTrial(const BenchTrial&) = delete;
  BenchTrial& operator=(const BenchTrial&) = delete;
  ~BenchTrial() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  const modVantrel::FileState& State() const { return state_; }
  const std::filesystem::path& Folder() const { return folder_; }
  std::filesystem::path File() const { return folder_ / "trial.c3d"; }

 private:
  inline static int made_ = 0;

  std::filesystem::path folder_;
  modVantrel::FileState state_;
};

}  // namespace bench
