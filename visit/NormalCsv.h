// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "visit/Normals.h"

namespace visit {

// The normals of a table of norms as the report writes it: label, component, percent, mean, sd, n,
// unit; in any order of rows, each curve whole. A NormalFault is thrown for anything else, also for
// a deviation below 0.
Normals NormalsOfCsv(std::string_view text);

}  // namespace visit
