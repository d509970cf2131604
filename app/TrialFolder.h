// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace app {

// The trials before and behind one in its folder; empty for none.
struct Neighbours {
  std::string Previous;
  std::string Next;
};

// The neighbours of the trial at `path` among the files of its folder that end in .c3d, in any
// case, in the order of their names byte for byte; whether or not it is still there itself. Paths
// are written as `path` is. None where the folder cannot be read.
Neighbours NeighboursOf(const std::string& path);

}  // namespace app
