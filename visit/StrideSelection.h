// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "c3d/FileState.h"
#include "c3d/FrameData.h"
#include "c3d/GaitEvents.h"

// Which strides and curves of a trial enter its means.
namespace visit {

// False where an event of the stride lay more than half a frame outside the trial and was moved to
// its edge: the stride's times then are not those of the walk.
bool IsComplete(const modVantrel::FileState& state, const modVantrel::StrideRecord& stride);

// The indices, from 1, of the complete strides in ValidStrides.
std::vector<std::int32_t> CompleteStrides(const modVantrel::FileState& state);

// Whether a point of these samples is seen in every frame of the stride, from the one nearest to
// its first strike to the one nearest to its closing strike. Errors as FrameNearestTo.
bool IsSeenThrough(const modVantrel::FileState& state, const modVantrel::PointSamples& samples,
                   const modVantrel::StrideRecord& stride);

}  // namespace visit
