// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <stdexcept>
#include <windows.h>

#include "support/FileSystem.h"
#include "support/FolderEntries.h"
#include "tests/DeepFolder.h"

namespace tests {

namespace {

// The library cannot take away what lies deep.
void RemoveAllIn(const std::string& folder) {
  modAllPurpose::ForEachEntry(folder, [&](const modAllPurpose::FolderEntry& entry) {
    const std::string path = folder + '\\' + entry.Name;
    if (entry.Kind == modAllPurpose::EntryKind::Folder) {
      RemoveAllIn(path);
      ::RemoveDirectoryW(modAllPurpose::NativePath(path).c_str());
    } else {
      ::DeleteFileW(modAllPurpose::NativePath(path).c_str());
    }
  });
}

}  // namespace

DeepFolder::DeepFolder()
    : path_(modAllPurpose::Utf8Path(std::filesystem::path(around_.Path()).make_preferred())) {
  constexpr std::size_t kNames = 6;
  for (std::size_t i = 0; i < kNames; ++i) {
    path_ = *this / std::string(60, 'd');
    MakeFolder(path_);
  }
}

DeepFolder::~DeepFolder() { RemoveAllIn(modAllPurpose::Utf8Path(around_.Path())); }

std::string DeepFolder::operator/(const std::string& name) const { return path_ + '\\' + name; }

void MakeFolder(const std::string& path) {
  if (::CreateDirectoryW(modAllPurpose::NativePath(path).c_str(), nullptr) == 0) {
    throw std::runtime_error("cannot make " + path);
  }
}

}  // namespace tests
