// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fstream>
#include <limits>
#include <string>

namespace bench {

// A line of what the system knows of this process, such as "VmRSS:".
inline double ProcessMegabytes(const std::string& field) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == field && status >> kilobytes) return kilobytes / 1024;
  }
  return std::numeric_limits<double>::quiet_NaN();
}

// How many megabytes this process's resident memory rises during `work`. To be asked before
// anything else took memory that the work could use again.
template <typename Work>
double MemoryRise(const Work& work) {
  std::ofstream("/proc/self/clear_refs") << "5";  // the peak starts anew
  const double start = ProcessMegabytes("VmRSS:");
  work();
  return ProcessMegabytes("VmHWM:") - start;
}

}  // namespace bench
