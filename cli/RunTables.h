// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "cli/Request.h"
#include "console/Streams.h"

namespace cli {

// Writes the one table of the request, csv or json, over `files` in their order. What fails is
// named on the error stream and makes `status` kSomeFailed, the rows before it stand, and the table
// is ended as it must. OutputClosed passes.
void RunTables(const Request& request, const std::vector<std::string>& files,
               const console::Streams& streams, int& status);

}  // namespace cli
