// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/GcdReport.h"

namespace cli {

// What the user asked for: a report, the files to make it of, and the options as they were given.
// An option that a report does not take says nothing to it.
struct Request {
  std::string Report;
  std::vector<std::string> Files;
  std::string Label;
  std::optional<std::string> Group;
  std::optional<std::string> Param;
  bool Events = false;
  GcdRequest Gcd;
};

}  // namespace cli
