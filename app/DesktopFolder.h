// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace app {

// The folder id of the user's desktop, the one id that is known.
inline constexpr int kDesktopFolderId = 16;

// A folder of the user, ended by the system's separator; empty where the system names none, the
// folder it names is not there, or the id is unknown.
std::string GetSpecialFolderPath(int folderId);

// The user's desktop, as the system's settings have it.
std::string GetDesktopFolder();

}  // namespace app
