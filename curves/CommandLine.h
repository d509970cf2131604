// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "console/Usage.h"
#include "curves/Request.h"

namespace curves {

inline constexpr const char* kProgram = "vantrel-curves";

// "vantrel-curves 1.2.3"
std::string ProgramAndVersion();

// What `arguments` (without the program's name) ask for. A UsageError where that cannot be told.
std::variant<Request, console::AskedText> ParseCommandLine(
    const std::vector<std::string>& arguments);

}  // namespace curves
