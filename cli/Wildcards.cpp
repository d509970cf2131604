// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Wildcards.h"

#include <algorithm>

namespace cli {

namespace {

std::wstring InCase(std::wstring text, const LetterCase& letterCase) {
  std::ranges::transform(text, text.begin(), letterCase);
  return text;
}

// Where a letter does not fit, the last "*" takes one letter more and what follows it is tried
// again; an earlier one need not, since the last one takes any letters that it would.
bool Fits(std::wstring_view name, std::wstring_view pattern) {
  constexpr auto kNone = std::wstring_view::npos;
  std::size_t afterStar = kNone;
  std::size_t starEnd = 0;
  std::size_t p = 0;
  for (std::size_t n = 0; n < name.size();) {
    if (p < pattern.size() && pattern[p] == L'*') {
      afterStar = ++p;
      starEnd = n;
    } else if (p < pattern.size() && (pattern[p] == L'?' || pattern[p] == name[n])) {
      ++p;
      ++n;
    } else if (afterStar != kNone) {
      p = afterStar;
      n = ++starEnd;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(L'*', p) == kNone;
}

}  // namespace

bool HasWildcard(std::string_view path) {
  return path.find_first_of("*?", path.find_last_of("/\\:") + 1) != std::string_view::npos;
}

bool FitsWildcards(const std::wstring& name, const std::wstring& pattern,
                   const LetterCase& letterCase) {
  constexpr std::wstring_view kAnyEnding = L".*";
  const std::wstring nameInCase = InCase(name, letterCase);
  std::wstring patternInCase = InCase(pattern, letterCase);
  if (Fits(nameInCase, patternInCase)) return true;
  if (!patternInCase.ends_with(kAnyEnding)) return false;
  patternInCase.resize(patternInCase.size() - kAnyEnding.size());
  return Fits(nameInCase, patternInCase);
}

std::vector<std::wstring> FilesThatFit(const std::wstring& pattern, const FolderListing& listing,
                                       const LetterCase& letterCase) {
  std::vector<std::wstring> files;
  while (auto entry = listing()) {
    if (entry->IsFolder || !FitsWildcards(entry->Name, pattern, letterCase)) continue;
    files.push_back(std::move(entry->Name));
  }
  std::ranges::sort(files);
  return files;
}

}  // namespace cli
