// SPDX-License-Identifier: GPL-3.0-or-later

#include "deploy/ResourceFile.h"

#include "deploy/Folders.h"

namespace modResourceFile {

namespace {

std::string WithoutBlanks(std::string name) {
  std::erase(name, ' ');
  return name;
}

}  // namespace

void ExtractResourceToFile(deploy::Host& host, const std::string& folder, const std::string& name,
                           const std::string& type, Overwrite overwrite) {
  const std::string target = modAllPurposeFolders::WithSeparator(host, folder) + name;
  const bool exists = host.FileExists(target);
  if (exists && overwrite == Overwrite::No) return;
  const auto bytes = host.Resource(type, WithoutBlanks(name));
  if (exists) host.RemoveFile(target);
  // Half a file would pass for the whole one at every later start; the host leaves none.
  host.WriteNewFile(target, bytes);
}

}  // namespace modResourceFile
