// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "pages/Page.h"
#include "pages/ShownTrials.h"

namespace pages {

// Adds the marks of a side, each at the mean over its complete strides of all trials; none where
// there is no such stride.
void AddMarks(const ShownTrials& shown, modVantrel::GaitSide side, std::vector<Mark>& marks);

}  // namespace pages
