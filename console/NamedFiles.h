// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "console/Streams.h"

namespace console {

// The files that those of the command line stand for. One that cannot be told is complained about
// and left out; `status` becomes kSomeFailed.
std::vector<std::string> FilesToRead(const std::vector<std::string>& named, const Streams& streams,
                                     int& status);

}  // namespace console
