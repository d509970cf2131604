// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "console/Streams.h"

namespace console {

// Whether a folder on the command line stands for the trials below it.
enum class Folders { Refused, Searched };

// The files that those of the command line stand for, in their order. One that cannot be told, a
// folder below a searched one that cannot be read, and one that holds no trial are complained about
// and left out; `status` becomes kSomeFailed.
std::vector<std::string> FilesToRead(const std::vector<std::string>& named, Folders folders,
                                     const Streams& streams, int& status);

}  // namespace console
