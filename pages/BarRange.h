// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "pages/Page.h"

namespace pages {

// A round range that holds 0, the bars, and a deviation on either side of each and of what is
// normal.
Range RangeOfBars(std::span<const BarGroup> groups);

}  // namespace pages
