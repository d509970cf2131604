// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <filesystem>

// What systems do differently about the files that FileSystem.cpp writes. Nothing else uses it.
namespace modAllPurpose::systemFiles {

// Makes a file that is not there yet and opens it for writing. Null, with errno set and nothing
// made, where that fails.
std::FILE* CreateNew(const std::filesystem::path& path);

// Opens an existing file for changes and leaves it as it is. Null, with errno set, where it is not
// there or may not be written.
std::FILE* OpenToChange(const std::filesystem::path& path);

// Deletes a file if it can.
void DeleteIfPossible(const std::filesystem::path& path) noexcept;

// The file that `path` stands for, through all of its links. A RuntimeError where a link leads
// nowhere.
std::filesystem::path WithoutLinks(const std::filesystem::path& path);

// Gives `file` the rights of `pattern`, a file that may be written, as far as the system lets it.
void CopyRights(const std::filesystem::path& pattern, const std::filesystem::path& file);

}  // namespace modAllPurpose::systemFiles
