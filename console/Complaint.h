// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "console/Streams.h"

namespace console {

// Writes the line "PROGRAM: MESSAGE" to the error stream, one line whatever names the message
// holds: they are Escaped. That nobody takes it is no error: there is nothing left to say then.
void Complain(const Streams& streams, std::string_view message);

// The same of `file`: "PROGRAM: FILE: MESSAGE".
void ComplainOf(const std::string& file, std::string_view message, const Streams& streams);

}  // namespace console
