// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace modAllPurpose {

// A path of the program (UTF-8) in the form that the system's file routines take. Bytes that are
// not UTF-8 reach a POSIX system unchanged and are error 75 on Windows.
std::filesystem::path NativePath(const std::string& utf8Path);

// The same back in the program's form. Error 75 for the name of a Windows file that is no UTF-16
// and so has no such form.
std::string Utf8Path(const std::filesystem::path& nativePath);

// True when `path` exists and is not a folder; false for a folder, and whenever asking fails.
bool FileExists(const std::string& path);

// One spelling for each file, whatever way its path is written, whether the file exists or not:
// whole, without "." and "..", with links followed on a POSIX system and in one case on Windows.
// Where the system cannot tell, `path` itself.
std::string OneSpelling(const std::string& path);

// Deletes the file at `path`; Windows keeps no file because it is read-only. Error 53 where there
// is none, 70 or 75 where it cannot be deleted or is a folder.
void RemoveFile(const std::string& path);

// Makes the file `path` of `bytes`. Error 75 where anything of that name is there, which stays as
// it is; 57, 61, 70, 75 and, for a missing folder, 76 where the file cannot be made, and then
// nothing of it is left.
void WriteNewFile(const std::string& path, std::span<const std::byte> bytes);

// Gives the file at `path` the contents `text`. They are written to a new file in the same folder,
// which then takes the old one's place in one step: whatever fails, an existing file stays as it
// was and nothing is left beside it. A file that may not be written is not replaced; on a POSIX
// system a symbolic link is followed. Errors 57, 61, 70, 75 and, for a missing folder, 76.
void WriteFileInOneStep(const std::string& path, std::string_view text);

}  // namespace modAllPurpose
