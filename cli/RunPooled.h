// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "cli/Request.h"
#include "console/Streams.h"

namespace cli {

// Writes the request's report over the strides of all `files`, as text or as a table. A file that
// fails is named on the error stream and left out whole; what is missing is named there too, and
// either makes `status` kSomeFailed. Nothing is printed where the normal values cannot be read.
// OutputClosed passes.
void RunPooled(const Request& request, const std::vector<std::string>& files,
               const console::Streams& streams, int& status);

}  // namespace cli
