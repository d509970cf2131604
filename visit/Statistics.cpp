// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/Statistics.h"

#include <cmath>

namespace visit {

void Statistics::Add(double value) {
  ++count_;
  const double before = value - mean_;
  mean_ += before / static_cast<double>(count_);
  squares_ += before * (value - mean_);
}

std::optional<double> Statistics::Mean() const {
  if (count_ == 0) return std::nullopt;
  return mean_;
}

std::optional<double> Statistics::Deviation() const {
  if (count_ < 2) return std::nullopt;
  return std::sqrt(squares_ / static_cast<double>(count_ - 1));
}

std::optional<double> Asymmetry(const SideStatistics& sides) {
  const auto left = sides.Left.Mean();
  const auto right = sides.Right.Mean();
  if (!left || !right || *left + *right == 0) return std::nullopt;
  constexpr double kPercent = 100;
  return (*right - *left) / ((*right + *left) / 2) * kPercent;
}

}  // namespace visit
