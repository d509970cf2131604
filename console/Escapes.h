// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace console {

// `text` for a line on a terminal: control characters, which could end the line or move and dress
// the rest, as \n, \r, \t, \x1B (below 32, and DEL) or \u009B (U+0080 to U+009F), and bytes that
// are no UTF-8 as \xFF. All else stays, backslashes too: the text is for people to read.
std::string Escaped(std::string_view text);

// The same for whole lines, whose ends stay.
std::string EscapedLines(std::string_view lines);

}  // namespace console
