// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/Page.h"
#include "pages/ShownTrials.h"

namespace pages {

// The page of the conventional measures: a panel each, with a bar for either side.
Page MeasurePage(const ShownTrials& shown);

}  // namespace pages
