// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace reports {

// What a table is asked to hold.
struct TableOptions {
  std::vector<std::string> Labels = {};  // none: all, where a report can do without
  bool AllLabels = false;                // every point or channel by its place
  std::optional<std::string> Group = {};
  std::optional<std::string> Param = {};
};

// What is to be said of a table whose rows are not all that was asked for, one sentence each.
using Complaints = std::vector<std::string>;

}  // namespace reports
