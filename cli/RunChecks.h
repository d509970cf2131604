// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "cli/Request.h"
#include "console/Streams.h"

namespace cli {

// Writes as texts what is unusual in each of `files`, which need not be ones that can be opened. A
// finding that is an error makes `status` kSomeFailed; the error stream is told of output alone
// that cannot be written. OutputClosed passes.
void RunChecks(const Request& request, const std::vector<std::string>& files,
               const console::Streams& streams, int& status);

}  // namespace cli
