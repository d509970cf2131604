// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "deploy/Host.h"

namespace modAllPurposeFolders {

// `folder` with the host's separator at its end, added if it is missing.
std::string WithSeparator(const deploy::Host& host, std::string folder);

// True when `path`, with or without a separator at its end, is a folder; false for a file and for
// nothing.
bool FolderExists(const deploy::Host& host, std::string path);

// Deletes the file at `path`; whether there was one and whether it went is not reported.
void DeleteIgnoringErrors(deploy::Host& host, const std::string& path);

}  // namespace modAllPurposeFolders
