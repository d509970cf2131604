// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "c3d/FileState.h"

namespace app {

// Opens the trial at `path` once more in a fresh `state`, with its further labels: for what the
// fixed reports of the form do not know. The sentence that says why it cannot be opened, else
// nothing. Errors as OpenC3dFile.
std::string OpenAnew(const std::string& path, modVantrel::FileState& state);

}  // namespace app
