// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>

namespace cli {

// Where a run of the tool prints and where it complains: the standard streams, or files of a test.
struct Streams {
  std::FILE* Output;
  std::FILE* Error;
};

}  // namespace cli
