// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/BarRange.h"

#include "pages/Ranges.h"

namespace pages {

namespace {

void AddWithDeviation(Extent& extent, const std::optional<double>& value,
                      const std::optional<double>& deviation) {
  if (!value) return;
  extent.Add(*value - deviation.value_or(0));
  extent.Add(*value + deviation.value_or(0));
}

}  // namespace

Range RangeOfBars(std::span<const BarGroup> groups) {
  Extent extent;
  for (const BarGroup& group : groups) {
    for (const Bar& bar : group.Bars) AddWithDeviation(extent, bar.Value, bar.Deviation);
    AddWithDeviation(extent, group.NormalMean, group.NormalDeviation);
  }
  if (extent.IsEmpty()) return RoundRange(extent);
  extent.Add(0);
  if (extent.Low() == 0 && extent.High() == 0) return RoundRange({});
  return RoundRange(extent);
}

}  // namespace pages
