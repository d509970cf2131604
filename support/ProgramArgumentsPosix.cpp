// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/ProgramArguments.h"

namespace modAllPurpose {

std::vector<std::string> ProgramArguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

}  // namespace modAllPurpose
