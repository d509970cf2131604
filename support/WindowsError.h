// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/RuntimeError.h"

namespace modAllPurpose {

// The error for what the last call of the system about a file failed with. On Windows only.
RuntimeError LastFileError();

}  // namespace modAllPurpose
