// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

namespace modVantrel {

// The metres of one unit of length as a file spells it: m, cm or mm in any case, what fills its
// field aside. Nothing for any other.
std::optional<double> MetresPerUnit(std::string_view unit);

}  // namespace modVantrel
