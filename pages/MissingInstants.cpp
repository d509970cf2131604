// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/MissingInstants.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "support/Arithmetic.h"

namespace pages {

using modVantrel::FileState;
using modVantrel::PointSample;
using modVantrel::PointSamples;

namespace {

constexpr double kOnAFrame = 0.001;  // frames

// `place` is counted in frames, from 0 at the first one. Places outside the trial stand for its
// ends.
bool IsSeenAt(const PointSamples& samples, double place) {
  if (std::isnan(place)) return false;
  const double inside = std::clamp(place, 0.0, std::max(samples.Count() - 1.0, 0.0));
  const double nearest = std::round(inside);
  const bool isOnAFrame = std::fabs(inside - nearest) <= kOnAFrame;
  const auto first = static_cast<std::int32_t>(isOnAFrame ? nearest : std::floor(inside)) + 1;
  return samples[first].IsSeen() && (isOnAFrame || samples[first + 1].IsSeen());
}

}  // namespace

bool HasNotANumber(const PointSamples& samples) {
  return std::ranges::any_of(samples, [](const PointSample& sample) {
    return std::isnan(sample.X) || std::isnan(sample.Y) || std::isnan(sample.Z);
  });
}

InstantSet MissingInstants(const FileState& state, const PointSamples& samples,
                           const modVantrel::NormalizedCurve& curve) {
  InstantSet missing;
  for (std::int32_t i = 1; i <= curve.Count(); ++i) {
    const double fromStart = double{curve[i].Time} - state.WalkStartTime;
    const double place = modAllPurposeNumbers::Divide(fromStart, state.TimeBetweenFrames);
    missing[static_cast<std::size_t>(i) - 1] = !IsSeenAt(samples, place);
  }
  return missing;
}

}  // namespace pages
