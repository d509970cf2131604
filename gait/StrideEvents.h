// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "c3d/FileState.h"
#include "c3d/GaitEvents.h"

namespace modVantrel {

// The five events of a stride, in their order.
std::array<EventRecord, 5> EventsOf(const StrideRecord& stride);

// The index, from 1, of the frame nearest to `time` (seconds of the trial), halves up; that of the
// first or last frame for a time outside. Errors 6 and 11 where the time between frames gives no
// number of frames.
std::int32_t FrameNearestTo(const FileState& state, float time);

}  // namespace modVantrel
