// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "c3d/Component.h"
#include "gait/StrideCurve.h"

namespace visit {

inline constexpr std::size_t kInstants = modVantrel::kNormalizedPoints;

// One component at the 51 instants of a stride.
using CurveValues = std::array<double, kInstants>;

// The percentage of a stride that instant `i`, from 0, stands for.
inline constexpr std::int64_t PercentOf(std::size_t i) { return static_cast<std::int64_t>(2 * i); }

// Mean and sample standard deviation of curves at each instant and component. The curves are not
// kept, so a label takes the same room for one stride and for a thousand. A value that is not a
// number makes the mean and deviation of its instant none.
class CurveStatistics {
 public:
  // `curve` has kNormalizedPoints instants.
  void Add(const modVantrel::NormalizedCurve& curve);
  // The same of three curves, X, Y and Z.
  void Add(const std::array<CurveValues, 3>& curve);
  // What both together would have been given.
  void Merge(const CurveStatistics& other);

  std::int64_t Count() const { return count_; }
  // Missing before the first curve.
  std::optional<CurveValues> Mean(modVantrel::Component component) const;
  // Missing before the second curve.
  std::optional<CurveValues> Deviation(modVantrel::Component component) const;

 private:
  struct Instant {
    double Mean = 0;
    double Squares = 0;  // of the differences from the mean, summed
  };

  template <typename ValueAt>
  void AddValues(ValueAt valueAt);
  std::span<const Instant> InstantsOf(modVantrel::Component component) const;

  std::int64_t count_ = 0;
  std::vector<Instant> instants_;  // X, Y, Z one behind the other; none before the first curve
};

}  // namespace visit
