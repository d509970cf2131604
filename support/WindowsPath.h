// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace modAllPurpose {

// `path` as it leads to the file from any folder; empty where the system cannot tell. The system
// is asked rather than the library, which does not know the paths that begin "\\server" or "\\?".
// On Windows only.
std::wstring WholeWindowsPath(const std::wstring& path);

// `path` in a form that the system takes whatever its length: a long one becomes whole and begins
// "\\?\", for which no setting of the system is needed; a shorter one stays as it is written, but
// for slashes behind "\\?\", which become backslashes. A path that is made of the result and
// another name may be long again. On Windows only.
std::wstring OfAnyLength(const std::wstring& path);

}  // namespace modAllPurpose
