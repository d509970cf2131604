// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "c3d/FileState.h"

namespace tests {

// The text of every report on an opened sample walk by its name, and of the GCD file of each of its
// strides. The header report is left out, as
// it names the file.
std::map<std::string, std::string> AllReportsOf(const modVantrel::FileState& state);

}  // namespace tests
