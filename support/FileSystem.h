// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
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

// The last name of `path`, behind its folder, and the folder as it is written: with its separator,
// or empty where the path names none.
std::string_view OwnName(std::string_view path);
std::string_view FolderPart(std::string_view path);

// The folder of `path` without a separator at its end, that of a root aside; "." for none.
std::string_view FolderOf(std::string_view path);

// True when `path` exists and is not a folder; false for a folder, and whenever asking fails.
bool FileExists(const std::string& path);

// True when `path` leads, through all of its links, to a folder.
bool IsFolder(const std::string& path);

// True when anything has the name `path`: also a folder, and a link that leads nowhere.
bool IsNameTaken(const std::string& path);

// True when `path` leads, through all of its links, to a file that is no folder, pipe or device.
bool IsRegularFile(const std::string& path);

// True when both paths lead to one file, be it under two names of its own.
bool IsSameFile(const std::string& path, const std::string& other);

// `path` as it leads to the file from any folder, also from a share or to a drive's own current
// folder. What stands in it is not looked up, so that a POSIX system keeps its ".." and links.
// Where the system cannot tell, `path` itself.
std::string WholePath(const std::string& path);

// One spelling for each file, whatever way its path is written, whether the file exists or not:
// whole, without "." and "..", with links followed on a POSIX system and in one case on Windows.
// Where the system cannot tell, `path` itself.
std::string OneSpelling(const std::string& path);

// True when both paths are written for one file, which nothing is looked up for: in any case and
// with either separator on Windows, byte for byte on a POSIX system.
bool IsSameSpelling(const std::string& path, const std::string& other);

// When the file that `path` leads to was last written; nothing where there is none or asking fails.
std::optional<std::chrono::system_clock::time_point> LastWritten(const std::string& path);

// Deletes the file at `path`; Windows keeps no file because it is read-only. Error 53 where there
// is none, 70 or 75 where it cannot be deleted or is a folder.
void RemoveFile(const std::string& path);

// Makes the file `path` of `bytes`. Error 75 where anything of that name is there, which stays as
// it is; 57, 61, 70, 75 and, for a missing folder, 76 where the file cannot be made, and then
// nothing of it is left.
void WriteNewFile(const std::string& path, std::span<const std::byte> bytes);

}  // namespace modAllPurpose
