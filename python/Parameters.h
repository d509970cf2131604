// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <pybind11/pybind11.h>

#include "c3d/ParamRecord.h"
#include "python/OpenedTrial.h"

namespace python {

// A group by its name and the names of its parameters, in file order.
using GroupNames = std::pair<std::string, std::vector<std::string>>;

// All groups of the parameter section, as it is now. Where it is damaged those before the damage
// or, for the `whole` section, the error.
std::vector<GroupNames> ReadParameterNames(const modVantrel::FileState& state, bool whole);

// The values of a parameter: one value as an int, a float or a str, several texts as lists, several
// numbers as an array of the file's dimensions, the first one fastest.
pybind11::object ValueOf(const modVantrel::ParamRecord& param);

}  // namespace python
