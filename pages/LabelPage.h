// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include "pages/Page.h"
#include "pages/ShownTrials.h"

namespace pages {

// The page of a label over the whole trial of `file`, from 0: X, Y and Z below each other.
Page LabelPage(const ShownTrials& shown, std::size_t file, const LabelOverTime& label);

}  // namespace pages
