// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TrialFolder.h"

#include <filesystem>
#include <system_error>

#include "c3d/TrialFiles.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"

namespace app {

namespace fs = std::filesystem;

namespace {

// Takes the name in where it is nearer to `own` than what is known.
void Consider(const std::string& name, std::string_view own, Neighbours& names) {
  if (name < own && name > names.Previous) names.Previous = name;
  if (name > own && (names.Next.empty() || name < names.Next)) names.Next = name;
}

Neighbours NamesBeside(const std::string& path) {
  Neighbours names;
  const std::string_view own = modAllPurpose::OwnName(path);
  const fs::path folder = modAllPurpose::NativePath(std::string(modAllPurpose::FolderOf(path)));
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed)) {
    const std::string name = modAllPurpose::Utf8Path(entry->path().filename());
    std::error_code ignored;
    if (modVantrel::IsTrialName(name) && entry->is_regular_file(ignored))
      Consider(name, own, names);
  }
  return names;
}

}  // namespace

Neighbours NeighboursOf(const std::string& path) {
  Neighbours beside;
  modAllPurpose::IgnoringErrors([&] { beside = NamesBeside(path); });
  const std::string folder(modAllPurpose::FolderPart(path));
  for (std::string* name : {&beside.Previous, &beside.Next}) {
    if (!name->empty()) name->insert(0, folder);
  }
  return beside;
}

}  // namespace app
