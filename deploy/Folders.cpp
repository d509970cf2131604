// SPDX-License-Identifier: GPL-3.0-or-later

#include "deploy/Folders.h"

#include "support/RuntimeError.h"

namespace modAllPurposeFolders {

std::string WithSeparator(const deploy::Host& host, std::string folder) {
  if (!folder.ends_with(host.FolderSeparator())) folder += host.FolderSeparator();
  return folder;
}

bool FolderExists(const deploy::Host& host, std::string path) {
  if (path.ends_with(host.FolderSeparator())) path.pop_back();
  return host.IsFolder(path);
}

void DeleteIgnoringErrors(deploy::Host& host, const std::string& path) {
  modAllPurpose::IgnoringErrors([&] { host.RemoveFile(path); });
}

}  // namespace modAllPurposeFolders
