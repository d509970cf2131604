#pragma once

#include <filesystem>
#include <string>

namespace modAllPurpose {

// A path of the program (UTF-8) in the form that the system's file routines take. Bytes that are
// not UTF-8 reach a POSIX system unchanged.
std::filesystem::path NativePath(const std::string& utf8Path);

// True when `path` exists and is not a folder; false for a folder, and whenever asking fails.
bool FileExists(const std::string& path);

}  // namespace modAllPurpose
