// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <system_error>

#include "support/FileSystem.h"
#include "support/FolderEntries.h"
#include "support/RuntimeError.h"

namespace modAllPurpose {

namespace fs = std::filesystem;

namespace {

// By what the folder has said of it, where it says that.
EntryKind KindOf(const fs::directory_entry& entry) {
  std::error_code ignored;
  if (entry.is_symlink(ignored)) return EntryKind::Link;
  if (entry.is_directory(ignored)) return EntryKind::Folder;
  if (entry.is_regular_file(ignored)) return EntryKind::File;
  return entry.is_other(ignored) ? EntryKind::Other : EntryKind::Unknown;
}

}  // namespace

void ForEachEntry(const std::string& folder, const std::function<void(const FolderEntry&)>& take) {
  std::error_code failed;
  for (fs::directory_iterator entry(NativePath(folder), failed), end; !failed && entry != end;
       entry.increment(failed)) {
    take({Utf8Path(entry->path().filename()), KindOf(*entry)});
  }
  if (failed) throw FileErrorFromCode(failed);
}

EntryKind KindBehindLinks(const std::string& path) {
  std::error_code ignored;
  switch (fs::status(NativePath(path), ignored).type()) {
    case fs::file_type::regular:
      return EntryKind::File;
    case fs::file_type::directory:
      return EntryKind::Folder;
    case fs::file_type::none:
    case fs::file_type::not_found:
    case fs::file_type::unknown:
      return EntryKind::Unknown;
    default:
      return EntryKind::Other;
  }
}

}  // namespace modAllPurpose
