// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "sample/TrialBuilder.h"
#include "tests/GaitTrials.h"
#include "visit/CurveStatistics.h"
#include "visit/TrialCurves.h"

// Walks whose measures are known in closed form, and curves made by hand.
namespace tests {

// The frames of the one stride of a whole-frame trial, from its first to its closing strike, and of
// the opposite strike.
inline constexpr std::int32_t kFirstStrikeFrame = 17;
inline constexpr std::int32_t kOppositeStrikeFrame = 42;
inline constexpr std::int32_t kClosingStrikeFrame = 67;

// A trial of the frames of the whole-frame trial whose one stride is of `side`.
sample::TrialBuilder TrialOfOneStride(const std::string& side);

// An opened trial, events and strides included.
OpenedWalk Opened(const sample::TrialBuilder& builder);

// A label with one curve a side, each standing still at its place.
visit::LabelCurves StandingCurves(const std::string& label, const std::array<double, 3>& left,
                                  const std::array<double, 3>& right);

// Adds to `curves` one that stands still at `place`.
void AddStandingCurve(visit::CurveStatistics& curves, const std::array<double, 3>& place);

// The csv of a curve that is `mean` and `deviation` at every instant, from the rows' label on.
std::string CsvOfCurve(std::string_view label, std::string_view component, double mean,
                       double deviation);
inline constexpr std::string_view kNormsHeading = "label,component,percent,mean,sd,n,unit\n";

}  // namespace tests
