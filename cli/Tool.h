// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "cli/Streams.h"

namespace cli {

// The exit statuses of the tool.
inline constexpr int kAllWell = 0;
inline constexpr int kSomeFailed = 1;
inline constexpr int kUsageError = 2;

// Does what the command line `arguments` (without the program's name) says and returns the exit
// status. What is printed goes to `streams.Output`, what went wrong is named on `streams.Error`.
int RunTool(const std::vector<std::string>& arguments, const Streams& streams);

}  // namespace cli
