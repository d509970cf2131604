// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

namespace visit {

// The finite number that `text` is, all of it, whatever the user's locale; none for anything else.
std::optional<double> PlainNumber(std::string_view text);

}  // namespace visit
