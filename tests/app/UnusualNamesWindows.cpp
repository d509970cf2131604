// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/UnusualNames.h"

namespace tests {

std::vector<std::string> UnusualNames() {
  return {"a b%41;#.c3d", "gr\xC3\xBC\xC3\x9F  [1].c3d", OddestName()};
}

std::string OddestName() { return "outside the first plane \xF0\x9D\x84\x9E.c3d"; }

std::string NameLikeMarkup() { return "a&lt;b&gt;&amp;"; }

}  // namespace tests
