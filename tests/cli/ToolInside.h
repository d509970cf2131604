// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "tests/cli/ToolRun.h"

namespace tests {

// Does the command line `arguments` inside this process, with files in place of the standard
// streams. Names of files are seen from this program's folder.
ToolResult RunInside(const std::vector<std::string>& arguments);

}  // namespace tests
