// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

#include "c3d/Component.h"

namespace reports {

// "x", "y" or "z", as tables name a component.
constexpr std::string_view ComponentName(modVantrel::Component component) {
  constexpr std::string_view kNames = "xyz";
  return kNames.substr(static_cast<std::size_t>(component) - 1, 1);
}

}  // namespace reports
