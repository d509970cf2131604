// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/UnusualNames.h"

namespace tests {

std::vector<std::string> UnusualNames() {
  return {"a b%41?#.c3d", "gr\xC3\xBC\xC3\x9F  [*].c3d", OddestName()};
}

std::string OddestName() { return "not utf-8 \xFC.c3d"; }

std::string NameLikeMarkup() { return "a<b>&amp;&lt;"; }

}  // namespace tests
