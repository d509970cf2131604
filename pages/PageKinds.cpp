// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/PageKinds.h"

#include <algorithm>
#include <cstddef>

namespace pages {

const PageInfo* FindPage(std::string_view name) {
  const auto* const page = std::ranges::find(kPages, name, &PageInfo::Name);
  return page == kPages.end() ? nullptr : page;
}

const PageInfo& InfoOf(PageKind kind) {
  static_assert(std::ranges::is_sorted(kPages, {}, &PageInfo::Kind), "one of each, in their order");
  return kPages.at(static_cast<std::size_t>(kind));
}

}  // namespace pages
