// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TrialFolder.h"

#include <string_view>

#include "c3d/TrialFiles.h"
#include "support/FileSystem.h"
#include "support/FolderEntries.h"
#include "support/RuntimeError.h"
#include "support/StoppableWork.h"

namespace app {

using modAllPurpose::EntryKind;
using modAllPurpose::FolderEntry;

namespace {

// Takes the name in where it is nearer to `own` than what is known.
void Consider(const std::string& name, std::string_view own, Neighbours& names) {
  if (name < own && name > names.Previous) names.Previous = name;
  if (name > own && (names.Next.empty() || name < names.Next)) names.Next = name;
}

bool IsFile(const FolderEntry& entry, const std::string& folderPart) {
  const EntryKind kind = entry.Kind == EntryKind::Link
                             ? modAllPurpose::KindBehindLinks(folderPart + entry.Name)
                             : entry.Kind;
  return kind == EntryKind::File;
}

Neighbours NamesBeside(const std::string& path) {
  Neighbours names;
  const std::string_view own = modAllPurpose::OwnName(path);
  const std::string part(modAllPurpose::FolderPart(path));
  const std::string folder(modAllPurpose::FolderOf(path));
  modAllPurpose::ForEachEntry(folder, [&](const FolderEntry& entry) {
    modAllPurpose::StoppableWork::EndIfStopped();
    if (modVantrel::IsTrialName(entry.Name) && IsFile(entry, part)) {
      Consider(entry.Name, own, names);
    }
  });
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
