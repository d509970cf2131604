// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "console/Streams.h"
#include "curves/Request.h"
#include "pages/TrialValues.h"

namespace curves {

// What the pages of the request need of its files, one after the other; only that is kept. A file
// that fails is named on the error stream and left out whole; a label that a file lacks is named
// with it. Either makes `status` kSomeFailed.
std::vector<pages::TrialValues> ReadTrials(const Request& request, const console::Streams& streams,
                                           int& status);

}  // namespace curves
