#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace modAllPurpose {

// A path of the program (UTF-8) in the form that the system's file routines take. Bytes that are
// not UTF-8 reach a POSIX system unchanged.
std::filesystem::path NativePath(const std::string& utf8Path);

// The same back in the program's form.
std::string Utf8Path(const std::filesystem::path& nativePath);

// True when `path` exists and is not a folder; false for a folder, and whenever asking fails.
bool FileExists(const std::string& path);

// Gives the file at `path` the contents `text`. They are written to a new file in the same folder,
// which then takes the old one's place in one step: whatever fails, an existing file stays as it
// was and nothing is left beside it. A file that may not be written is not replaced; a symbolic
// link is followed. Errors 57, 61, 70, 75 and, for a missing folder, 76.
void WriteFileInOneStep(const std::string& path, std::string_view text);

}  // namespace modAllPurpose
