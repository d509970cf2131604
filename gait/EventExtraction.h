// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "c3d/FileState.h"

namespace modVantrel {

// Fills state.GaitEvents from the file's events: three lists by side and type, each sorted by time,
// the valid strides and their events. Times outside the capture move to its first or last instant.
// A file without events, or whose event parameters do not fit together, simply has none; only
// errors met while looking the parameters up are passed on.
void ExtractGaitEvents(FileState& state);

// What an open runs at its end: ExtractGaitEvents, then TagStrideEventFrames.
void FindGaitEvents(FileState& state);

}  // namespace modVantrel
