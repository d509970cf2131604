// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "cli/Request.h"
#include "console/Usage.h"

namespace cli {

// What `arguments` (without the program's name) ask for. A UsageError where that cannot be told.
std::variant<Request, console::AskedText> ParseCommandLine(
    const std::vector<std::string>& arguments);

}  // namespace cli
