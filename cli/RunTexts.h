// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "cli/Request.h"
#include "console/Streams.h"

namespace cli {

// Prints the request's report of each of `files` as a text, under the file's name where there are
// several. What fails of a file is named on the error stream and makes `status` kSomeFailed.
// OutputClosed passes; a report whose work is files goes on instead.
void RunTexts(const Request& request, const std::vector<std::string>& files,
              const console::Streams& streams, int& status);

}  // namespace cli
