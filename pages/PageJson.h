// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "pages/Page.h"

namespace pages {

// The pages as a JSON object, for other programs and for tests. Numbers are the shortest texts that
// read back to the same number of their type; what is missing is null.
std::string JsonOf(const PageSet& set);

}  // namespace pages
