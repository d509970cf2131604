// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "c3d/PointSurvey.h"
#include "gait/CheckFindings.h"
#include "gait/CheckedTrial.h"

namespace modVantrel {

// The indices of the toe markers; 0 where there is none, or no stride that needs them.
struct ToeMarkers {
  std::int32_t Left = 0;
  std::int32_t Right = 0;

  // Both, or none where one is missing.
  std::vector<std::int32_t> Indices() const {
    return Left == 0 || Right == 0 ? std::vector<std::int32_t>() : std::vector{Left, Right};
  }
};

ToeMarkers FindToeMarkers(const FileState& state);

// toe-markers, walk-along-y, walk-turns, walk-in-place. `survey` kept the samples of
// toes.Indices().
void CheckWalk(const CheckedTrial& trial, const ToeMarkers& toes, const PointSurvey& survey,
               Findings& findings);

}  // namespace modVantrel
