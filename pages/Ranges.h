// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <optional>

#include "pages/Page.h"

namespace pages {

// From the least to the greatest of some numbers.
class Extent {
 public:
  // Numbers that are not finite do not count.
  void Add(double number) {
    if (!std::isfinite(number)) return;
    low_ = low_ ? std::min(*low_, number) : number;
    high_ = high_ ? std::max(*high_, number) : number;
  }

  bool IsEmpty() const { return !low_; }
  // Of an extent that is not empty.
  double Low() const { return low_.value_or(0); }
  double High() const { return high_.value_or(0); }

 private:
  std::optional<double> low_;
  std::optional<double> high_;
};

// `fixed`, widened at either end by as many whole ticks as `data` needs; a number that lies on an
// end needs none. However many these are, the tick stays what it was.
Range WidenedFor(const Range& fixed, const Extent& data);

// A range around `data` whose tick is 1, 2 or 5 times a power of ten; about five ticks. From 0 to 1
// without data.
Range RoundRange(const Extent& data);

}  // namespace pages
