// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "gait/GcdCommand.h"

namespace bench {

class OverwriteAll : public modVantrel::OverwriteQuestion {
 public:
  modVantrel::OverwriteAnswer Ask(const std::string& /*gcdFileName*/) override {
    return modVantrel::OverwriteAnswer::YesToAll;
  }
};

}  // namespace bench
