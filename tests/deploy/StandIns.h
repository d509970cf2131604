// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace tests {

// A small file in the place of one that a program carries: a component library or the manifest. The
// bytes are those of the files in the folder "stand-ins". Only for systems where a program has no
// resources of its own.
struct StandIn {
  std::string_view Type;
  std::string_view Name;
  std::string_view Bytes;
};

std::span<const StandIn> StandIns();

}  // namespace tests
