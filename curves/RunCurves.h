// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "console/Streams.h"

namespace curves {

// Does what the command line `arguments` (without the program's name) says and returns the exit
// status. What was asked for goes to `given.Output`, what went wrong is named on `given.Error`.
int RunCurves(const std::vector<std::string>& arguments, const console::Streams& given);

}  // namespace curves
