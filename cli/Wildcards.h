// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the wildcards of a file's name stand for. Systems match names in ways of their own, and also
// by short names that no user sees; this is the one way that holds.
namespace cli {

// What a folder holds: one entry after the other, none behind the last one. A RuntimeError where
// the system fails to go on.
struct FolderEntry {
  std::wstring Name;
  bool IsFolder = false;
};
using FolderListing = std::function<std::optional<FolderEntry>()>;

// The form of a letter in which names are compared.
using LetterCase = std::function<wchar_t(wchar_t letter)>;

// True when `path` has a wildcard, "*" or "?", in its last name.
bool HasWildcard(std::string_view path);

// True when the whole `name` fits `pattern`, in which "*" stands for any letters, none among them,
// and "?" for exactly one. ".*" at the end also stands for no ending at all.
bool FitsWildcards(const std::wstring& name, const std::wstring& pattern,
                   const LetterCase& letterCase);

// The names of the files, not folders, of `listing` that fit `pattern`, sorted. Fails as the
// listing does: half of the files would pass for all of them.
std::vector<std::wstring> FilesThatFit(const std::wstring& pattern, const FolderListing& listing,
                                       const LetterCase& letterCase);

}  // namespace cli
