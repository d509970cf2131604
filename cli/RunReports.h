// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Request.h"
#include "console/Streams.h"

namespace cli {

// Opens each file of the request with fresh state and prints its report. What fails is named on
// the error stream and the next file is taken. Returns the exit status.
int RunReports(Request request, const console::Streams& streams);

}  // namespace cli
