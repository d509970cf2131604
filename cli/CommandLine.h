// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "cli/Request.h"

namespace cli {

// A command line that nothing can be done for; what() is the sentence that says why.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What help or version were asked for say, whole lines.
struct AskedText {
  std::string Text;
};

// What `arguments` (without the program's name) ask for. A UsageError where that cannot be told.
std::variant<Request, AskedText> ParseCommandLine(const std::vector<std::string>& arguments);

}  // namespace cli
