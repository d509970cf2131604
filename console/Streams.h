// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <string_view>

namespace console {

// Where a run of a tool prints and where it complains: the standard streams, or files of a test.
struct Streams {
  std::FILE* Output;
  std::FILE* Error;
  std::string_view Program = {};  // the tool's name, in front of what it complains of
};

}  // namespace console
