// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "tests/cli/ToolRun.h"

namespace tests {

// Does the command line `arguments` of vantrel-curves inside this process.
ToolResult RunCurvesInside(const std::vector<std::string>& arguments);

}  // namespace tests
