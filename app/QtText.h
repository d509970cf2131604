// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include <QString>

namespace app {

// A text of the program (UTF-8) for the toolkit. Bytes that are not UTF-8, as a path may hold them,
// show as the replacement character.
inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace app
