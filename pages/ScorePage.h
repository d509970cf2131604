// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/Page.h"
#include "pages/ShownTrials.h"

namespace pages {

// The page of the scores against what is normal: one panel, a group of bars for each Gait Variable
// Score and one for the profile scores. Without normals it says how to choose them.
Page ScorePage(const ShownTrials& shown);

}  // namespace pages
