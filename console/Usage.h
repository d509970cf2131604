// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>

// What a command line can come to besides work.
namespace console {

// The exit statuses of the tools.
inline constexpr int kAllWell = 0;
inline constexpr int kSomeFailed = 1;
inline constexpr int kUsageError = 2;

// A command line that nothing can be done for; what() is the sentence that says why.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What help or version were asked for say, whole lines.
struct AskedText {
  std::string Text;
};

}  // namespace console
