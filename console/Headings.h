// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace console {

// The line in front of the text of one of `files`, where there are several; else nothing.
inline std::string HeadingOf(const std::vector<std::string>& files, std::size_t number) {
  return files.size() > 1 ? "==> " + files[number] + " <==" : std::string();
}

}  // namespace console
