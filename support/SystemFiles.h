// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <filesystem>

// What systems do differently about the files that FileSystem.cpp writes. Nothing else uses it.
namespace modAllPurpose::systemFiles {

// Makes a file that is not there yet and opens it for writing. Null, with errno set and nothing
// made, where that fails.
std::FILE* CreateNew(const std::filesystem::path& path);

// Deletes a file if it can.
void DeleteIfPossible(const std::filesystem::path& path) noexcept;

}  // namespace modAllPurpose::systemFiles
