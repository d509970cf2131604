// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "visit/Normals.h"

namespace visit {

// What a GCD file begins with.
inline constexpr std::string_view kGcdStart = "#!DST";

// The normals of a GCD file. A curve is "!" and a variable of our GCD files without a side, then 51
// lines of mean and deviation; its component is that of the anatomical axes and moments come in Nm.
// Other variables are passed over, empty lines too. A NormalFault is thrown for a curve of another
// form, for a deviation below 0, for a curve that stands twice or belongs to a side, and where
// there is none.
Normals NormalsOfGcd(std::string_view text);

}  // namespace visit
