// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bitset>

#include "c3d/FileState.h"
#include "c3d/FrameData.h"
#include "gait/StrideCurve.h"
#include "visit/CurveStatistics.h"

namespace pages {

using InstantSet = std::bitset<visit::kInstants>;

// Whether a coordinate of the label is not a number in any frame. A spline goes through all frames,
// so that no value of the label's curves is one then.
bool HasNotANumber(const modVantrel::PointSamples& samples);

// The instants of a curve, from 0, whose frame is not seen: the one on which the instant falls
// within a thousandth of a frame, or else one of the two around it. Error 9 for a trial without
// frames, 11 where there is no time between them.
InstantSet MissingInstants(const modVantrel::FileState& state,
                           const modVantrel::PointSamples& samples,
                           const modVantrel::NormalizedCurve& curve);

}  // namespace pages
