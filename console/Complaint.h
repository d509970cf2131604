// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "console/Streams.h"

namespace console {

// Writes the line "PROGRAM: MESSAGE" to the error stream, one line whatever names the message
// holds: they are Escaped. That nobody takes it is no error: there is nothing left to say then.
void Complain(const Streams& streams, std::string_view message);

}  // namespace console
