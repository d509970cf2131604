// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/Ranges.h"

namespace pages {

namespace {

// Digit * 10^Exponent.
struct RoundTick {
  double Digit;
  double Exponent;

  // `count` ticks, rounded once where that can be, so that no 0.30000000000000004 comes of it.
  double Times(double count) const {
    if (Exponent < 0) return count * Digit / std::pow(10.0, -Exponent);
    return count * Digit * std::pow(10.0, Exponent);
  }
};

// The least round tick that is not below `least`, a positive number.
RoundTick RoundTickFrom(double least) {
  const double exponent = std::floor(std::log10(least));
  for (const double digit : {1.0, 2.0, 5.0}) {
    const RoundTick tick{digit, exponent};
    if (tick.Times(1) >= least) return tick;
  }
  return {1, exponent + 1};
}

}  // namespace

Range WidenedFor(const Range& fixed, const Extent& data) {
  if (data.IsEmpty()) return fixed;
  Range range = fixed;
  if (data.Low() < range.Low) range.Low = std::floor(data.Low() / range.Tick) * range.Tick;
  if (data.High() > range.High) range.High = std::ceil(data.High() / range.Tick) * range.Tick;
  range.IsWidened = range != fixed;
  return range;
}

Range RoundRange(const Extent& data) {
  constexpr double kTicks = 5;
  if (data.IsEmpty()) return {0, 1, 1 / kTicks, false};
  double low = data.Low();
  double high = data.High();
  if (low == high) {
    const double around = low == 0 ? 1 : std::fabs(low) / 2;
    low -= around;
    high += around;
  }
  const RoundTick tick = RoundTickFrom((high - low) / kTicks);
  return {tick.Times(std::floor(low / tick.Times(1))), tick.Times(std::ceil(high / tick.Times(1))),
          tick.Times(1), false};
}

}  // namespace pages
