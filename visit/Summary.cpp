// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/Summary.h"

#include <cstddef>

namespace visit {

using modVantrel::GaitSide;

void Summary::Add(std::span<const GaitMeasures> strides) {
  for (const GaitMeasures& stride : strides) {
    if (stride.Side == GaitSide::None) continue;
    for (std::size_t i = 0; i < kGaitMeasureCount; ++i) {
      const auto& value = stride.*GaitMeasureTable()[i].Value;
      SideStatistics& sides = measures_[i];
      if (value) (stride.Side == GaitSide::Left ? sides.Left : sides.Right).Add(*value);
    }
  }
}

}  // namespace visit
