// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <string_view>

namespace cli {

// Writes the line "vantrel-report: MESSAGE" to `stream`, one line whatever names the message holds:
// they are Escaped. That nobody takes it is no error: there is nothing left to say then.
void Complain(std::FILE* stream, std::string_view message);

}  // namespace cli
