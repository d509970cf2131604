// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace modAllPurpose {

// `text` of the system, ended by a NUL, in UTF-8, with a mark in place of what is no UTF-16. On
// Windows only.
std::string Utf8Text(const wchar_t* text);

}  // namespace modAllPurpose
