// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "cli/GcdReport.h"

namespace cli {

// What the user asked for.
struct Request {
  std::string Report;
  std::vector<std::string> Files;
  std::string Label;
  std::string Group;
  std::string Param;
  bool HasParam = false;
  bool HasGroup = false;
  bool Events = false;
  GcdRequest Gcd;
};

// The exit statuses of the tool.
inline constexpr int kAllWell = 0;
inline constexpr int kSomeFailed = 1;
inline constexpr int kUsageError = 2;

// The request in `arguments` (without the program's name), or the exit status where there is
// nothing to do: help or version was printed, or a usage error was written to standard error.
std::variant<Request, int> ParseCommandLine(std::vector<std::string> arguments);

}  // namespace cli
