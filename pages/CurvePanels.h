// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/Page.h"
#include "pages/ShownTrials.h"

namespace pages {

// The page of curves of that kind, with mean deviations from stride to stride where it is the one
// of variability.
Page CurvePage(const ShownTrials& shown, PageKind kind);

}  // namespace pages
