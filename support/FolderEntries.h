// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace modAllPurpose {

// Other is a pipe, a device and the like; Unknown is what cannot be told.
enum class EntryKind { File, Folder, Link, Other, Unknown };

// What a folder itself says of one of its entries: what lies in it may be out of reach.
struct FolderEntry {
  std::string Name;  // its own, without the folder
  EntryKind Kind = EntryKind::Unknown;
};

// Calls `take` with each entry of `folder` but itself and the one above, in no order. Error 53
// where there is none, otherwise as FileErrorFromCode where the folder cannot be read, or not to
// its end; 75 for a name that has no form in the program.
void ForEachEntry(const std::string& folder, const std::function<void(const FolderEntry&)>& take);

// What `path` leads to through all of its links: Unknown where they lead nowhere, never Link.
EntryKind KindBehindLinks(const std::string& path);

}  // namespace modAllPurpose
