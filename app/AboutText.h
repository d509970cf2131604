// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace app {

// What the program is: its version, its licence, and the libraries that it runs on with their
// versions.
std::string AboutText();

}  // namespace app
