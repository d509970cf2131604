// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace modVantrel {

// "Left", "Right" or, for any other code, "None".
std::string_view SideName(std::int32_t side);

// "Foot Strike", "Foot Off" or, for any other code, "Other".
std::string_view EventTypeName(std::int32_t type);

}  // namespace modVantrel
