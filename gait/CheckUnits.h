// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "gait/CheckedTrial.h"

namespace modVantrel {

// The metres of one unit of the positions, by POINT:UNITS; nothing where that is missing or neither
// mm, cm nor m.
std::optional<double> MetresPerUnit(const CheckedTrial& trial);

}  // namespace modVantrel
