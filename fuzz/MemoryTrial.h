// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace fuzz {

// A file in memory that is opened by a path like any other, filled anew for each input.
class MemoryTrial {
 public:
  MemoryTrial();
  MemoryTrial(const MemoryTrial&) = delete;
  MemoryTrial& operator=(const MemoryTrial&) = delete;
  ~MemoryTrial();

  // The path of a file of exactly these bytes; valid until the next call.
  const std::string& Fill(std::span<const std::uint8_t> bytes);

 private:
  int descriptor_ = -1;
  std::string path_;
};

}  // namespace fuzz
