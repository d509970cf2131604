// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "console/Streams.h"
#include "console/Usage.h"

namespace console {

// Prints what was asked for in place of work, and returns the exit status.
int Print(const AskedText& asked, const Streams& streams);

// What `work`, which reads a command line and does what it says, returns: the exit status. A
// UsageError that ends it is named on the error stream, with where to read more.
int RunCommandLine(const std::function<int()>& work, const Streams& streams);

}  // namespace console
