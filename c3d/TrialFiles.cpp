// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/TrialFiles.h"

#include <algorithm>
#include <map>
#include <utility>

#include "support/FileSystem.h"
#include "support/FolderEntries.h"

namespace modVantrel {

using modAllPurpose::EntryKind;
using modAllPurpose::FolderEntry;
using modAllPurpose::RuntimeError;

namespace {

// Whether an entry of a folder is a folder, a trial, or nothing that matters.
enum class Kind { Folder, Trial, Other };

std::string Below(const std::string& folder, const std::string& name) {
  return folder.size() == modAllPurpose::FolderPart(folder).size() ? folder + name
                                                                   : folder + '/' + name;
}

Kind KindOf(const FolderEntry& entry, const std::string& folder) {
  if (entry.Kind == EntryKind::Folder) return Kind::Folder;
  if (!IsTrialName(entry.Name)) return Kind::Other;
  const EntryKind kind = entry.Kind == EntryKind::Link
                             ? modAllPurpose::KindBehindLinks(Below(folder, entry.Name))
                             : entry.Kind;
  const bool canBeOpened = kind == EntryKind::File || kind == EntryKind::Unknown;
  return canBeOpened ? Kind::Trial : Kind::Other;
}

class Search {
 public:
  explicit Search(const UnreadFolder& tell) : tell_(tell) {}

  void LookInto(const std::string& folder) {
    for (const auto& [name, kind] : NamesIn(folder)) {
      const std::string path = Below(folder, name);
      if (kind == Kind::Folder) {
        LookInto(path);
      } else {
        found_.push_back(path);
      }
    }
  }

  std::vector<std::string> Found() && { return std::move(found_); }

 private:
  using Names = std::map<std::string, Kind>;

  // The names in a folder that matter, in order.
  Names NamesIn(const std::string& folder) {
    Names names;
    try {
      ReadNames(folder, names);
    } catch (const RuntimeError& error) {
      tell_(folder, error);
    }
    return names;
  }

  static void ReadNames(const std::string& folder, Names& names) {
    modAllPurpose::ForEachEntry(folder, [&](const FolderEntry& entry) {
      const Kind kind = KindOf(entry, folder);
      if (kind != Kind::Other) names.emplace(entry.Name, kind);
    });
  }

  const UnreadFolder& tell_;
  std::vector<std::string> found_;
};

}  // namespace

bool IsTrialName(std::string_view name) {
  constexpr std::string_view kEnding = ".c3d";
  const auto isSame = [](char one, char other) {
    return one == other || (one >= 'A' && one <= 'Z' && one - 'A' + 'a' == other);
  };
  return name.size() > kEnding.size() &&
         std::ranges::equal(name.substr(name.size() - kEnding.size()), kEnding, isSame);
}

std::vector<std::string> TrialsBelow(const std::string& folder, const UnreadFolder& tell) {
  Search search(tell);
  search.LookInto(folder);
  return std::move(search).Found();
}

}  // namespace modVantrel
