// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

namespace visit {

// The mean and the sample standard deviation of numbers that are taken one after the other and not
// kept (Welford's recurrence, stable where the deviation is small against the mean).
class Statistics {
 public:
  void Add(double value);

  std::int64_t Count() const { return count_; }
  // Missing before the first number.
  std::optional<double> Mean() const;
  // Over Count() - 1; missing before the second number.
  std::optional<double> Deviation() const;

 private:
  std::int64_t count_ = 0;
  double mean_ = 0;
  double squares_ = 0;  // of the differences from the mean, summed
};

// The statistics of a measure over the strides of either side.
struct SideStatistics {
  Statistics Left;
  Statistics Right;
};

// (right - left) / ((right + left) / 2) * 100 of the means, in percent; missing where a side has no
// numbers or the sum is 0.
std::optional<double> Asymmetry(const SideStatistics& sides);

}  // namespace visit
