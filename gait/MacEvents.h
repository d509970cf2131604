// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "c3d/FileState.h"

namespace modVantrel {

// Appends the toe offs and heel strikes of the event file beside the trial to the list of sided
// events, unsorted, and sets the counts. Answers false, with TotalCount alone set, where one of the
// four kinds of event has no frame. Errors: 9 for more than 20 frames of a kind, those of reading.
bool AppendMacEvents(FileState& state);

}  // namespace modVantrel
