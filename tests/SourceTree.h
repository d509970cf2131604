// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tests {

// The files of the tree, from its root; what was built, and what version control keeps, aside.
inline std::vector<std::string> FilesOfTheTree() {
  namespace fs = std::filesystem;
  const fs::path root = VANTREL_SOURCE_DIR;
  std::vector<std::string> files;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    const std::string file = fs::relative(entry->path(), root).generic_string();
    if (file == "build" || file == ".git") {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file()) {
      files.push_back(file);
    }
  }
  return files;
}

}  // namespace tests
