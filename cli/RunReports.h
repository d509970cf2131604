// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Request.h"
#include "console/Streams.h"

namespace cli {

// Opens each file of the request with fresh state and prints its report, in the order of the
// files, however many are worked on at once. What fails is named on the error stream and stops no
// other file. Returns the exit status.
int RunReports(const Request& request, const console::Streams& streams);

}  // namespace cli
