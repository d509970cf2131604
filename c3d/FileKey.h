// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace modVantrel {

// Whether the reader would take the regular file `path` for a C3D file by its first bytes, and it
// is not a PDF or PNG, which have the same second byte. Errors as RandomAccessFile.
bool BeginsLikeC3dFile(const std::string& path);

// Whether `path` leads, through all of its links, to such a file: false too for a folder, a pipe, a
// device or nothing at all. What must never be replaced is asked for by this. Errors as above.
bool IsC3dFile(const std::string& path);

}  // namespace modVantrel
