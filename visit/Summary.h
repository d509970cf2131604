// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>

#include "visit/GaitMeasures.h"
#include "visit/Statistics.h"

namespace visit {

// Mean and deviation of the conventional measures over the complete strides of either side, of one
// trial or of the trials of a visit. A measure that a stride lacks does not count in its number.
class Summary {
 public:
  Summary() = default;
  explicit Summary(std::span<const GaitMeasures> strides) { Add(strides); }

  // Strides of a side that is neither left nor right are left out.
  void Add(std::span<const GaitMeasures> strides);

  // In the order of GaitMeasureTable.
  const std::array<SideStatistics, kGaitMeasureCount>& Measures() const { return measures_; }

 private:
  std::array<SideStatistics, kGaitMeasureCount> measures_;
};

}  // namespace visit
