// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace tests {

// Counts what the program takes with operator new. Linking this file replaces that operator for the
// whole test program.
class AllocationMeter {
 public:
  // Starts a new measurement.
  static void Reset();
  // The most bytes that were taken at one time since then, beyond those taken before.
  static std::size_t Peak();
};

}  // namespace tests
