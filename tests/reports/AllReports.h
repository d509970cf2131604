// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "c3d/FileState.h"

namespace tests {

// The text of every report on an opened sample walk by its name, of each label where it needs one,
// and of the GCD file of each of its strides. Left out are "header", which names the file, and
// "parameter-header", which names its number format.
std::map<std::string, std::string> AllReportsOf(const modVantrel::FileState& state);

}  // namespace tests
