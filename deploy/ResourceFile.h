// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "deploy/Host.h"

namespace modResourceFile {

// Whether a file that is already there gives way.
enum class Overwrite { No, Yes };

// Writes the resource of `type` that the program carries as `name` without its blanks to the file
// `name` in `folder`. Without overwriting, a file that is there stays and nothing is done; with it,
// that file is deleted first. Fails with error 53 where there is no such resource, or as the
// deleting or writing fails; no part of a new file is left then, and nothing that was there before
// under its name but a file to overwrite is touched.
void ExtractResourceToFile(deploy::Host& host, const std::string& folder, const std::string& name,
                           const std::string& type, Overwrite overwrite);

}  // namespace modResourceFile
