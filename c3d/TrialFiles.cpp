// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/TrialFiles.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

#include "support/FileSystem.h"

namespace modVantrel {

namespace fs = std::filesystem;

using modAllPurpose::RuntimeError;

namespace {

// Whether an entry of a folder is a folder, a trial, or nothing that matters.
enum class Kind { Folder, Trial, Other };

// By what the folder itself says of it, where it says that: what lies in it may be out of reach.
Kind KindOf(const fs::directory_entry& entry, const std::string& name) {
  std::error_code ignored;
  if (!entry.is_symlink(ignored) && entry.is_directory(ignored)) return Kind::Folder;
  if (!IsTrialName(name)) return Kind::Other;
  if (entry.is_regular_file(ignored)) return Kind::Trial;
  const fs::file_type type = entry.status(ignored).type();
  const bool canBeOpened = type == fs::file_type::regular || type == fs::file_type::not_found ||
                           type == fs::file_type::unknown || type == fs::file_type::none;
  return canBeOpened ? Kind::Trial : Kind::Other;
}

std::string Below(const std::string& folder, const std::string& name) {
  return folder.size() == modAllPurpose::FolderPart(folder).size() ? folder + name
                                                                   : folder + '/' + name;
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
    std::error_code failed;
    for (fs::directory_iterator entry(modAllPurpose::NativePath(folder), failed), end;
         !failed && entry != end; entry.increment(failed)) {
      const std::string name = modAllPurpose::Utf8Path(entry->path().filename());
      const Kind kind = KindOf(*entry, name);
      if (kind != Kind::Other) names.emplace(name, kind);
    }
    if (failed) throw modAllPurpose::FileErrorFromCode(failed);
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
