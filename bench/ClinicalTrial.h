// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include <fmt/format.h>

#include "sample/SampleWalk.h"

namespace bench {

// The sample walk with as many silent markers as make 2 MB of it, the size of a clinical trial.
inline sample::Trial TrialOf2Megabytes() {
  sample::TrialBuilder walk = sample::SampleWalk();
  constexpr int kMarkers = 225;
  for (int i = 0; i < kMarkers; ++i) {
    walk.AddPoint(fmt::format("M{}", i), [](std::int32_t) { return std::array{0.F, 0.F, 0.F}; });
  }
  return walk.Build();
}

}  // namespace bench
