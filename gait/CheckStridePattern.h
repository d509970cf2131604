// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "c3d/FileState.h"
#include "gait/CheckFindings.h"

namespace modVantrel {

// strides-none, of a trial that has events: where the events that come nearest to a stride leave
// its pattern.
void CheckStridePattern(const FileState& state, Findings& findings);

}  // namespace modVantrel
