// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstddef>
#include <cstdint>
#include <span>

#include "fuzz/ExerciseTrial.h"
#include "fuzz/MemoryTrial.h"

// Bytes as a C3D file: whatever they are, an open ends in a result code or a RuntimeError, and so
// does every report.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::MemoryTrial trial;
  const std::string& path = trial.Fill(std::span(data, size));
  fuzz::ExerciseTrial(path);
  fuzz::ExerciseCheckup(path);
  return 0;
}
