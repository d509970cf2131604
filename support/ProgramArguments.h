// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace modAllPurpose {

// The arguments that the program was started with, its own name aside, in UTF-8 on Windows, where
// main's own are in a code page that cannot name every file, and as they came elsewhere.
std::vector<std::string> ProgramArguments(int argc, char** argv);

}  // namespace modAllPurpose
