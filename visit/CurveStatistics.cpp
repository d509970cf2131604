// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/CurveStatistics.h"

#include <algorithm>
#include <cmath>

namespace visit {

using modVantrel::Component;
using modVantrel::kComponents;

namespace {

std::size_t PlaceOf(Component component) { return static_cast<std::size_t>(component) - 1; }

}  // namespace

template <typename ValueAt>
void CurveStatistics::AddValues(ValueAt valueAt) {
  instants_.resize(kComponents.size() * kInstants);
  ++count_;
  auto instant = instants_.begin();
  for (const Component component : kComponents) {
    for (std::size_t i = 0; i < kInstants; ++i, ++instant) {
      const double value = valueAt(component, i);
      const double before = value - instant->Mean;
      instant->Mean += before / static_cast<double>(count_);
      instant->Squares += before * (value - instant->Mean);
    }
  }
}

void CurveStatistics::Add(const modVantrel::NormalizedCurve& curve) {
  AddValues([&curve](Component component, std::size_t i) {
    return double{ComponentOf(curve[static_cast<std::int32_t>(i) + 1], component)};
  });
}

void CurveStatistics::Add(const std::array<CurveValues, 3>& curve) {
  AddValues([&curve](Component component, std::size_t i) { return curve[PlaceOf(component)][i]; });
}

void CurveStatistics::Merge(const CurveStatistics& other) {
  if (other.count_ == 0) return;
  if (count_ == 0) {
    *this = other;
    return;
  }
  const auto here = static_cast<double>(count_);
  const auto there = static_cast<double>(other.count_);
  for (std::size_t i = 0; i < instants_.size(); ++i) {
    const double apart = other.instants_[i].Mean - instants_[i].Mean;
    instants_[i].Mean += apart * there / (here + there);
    instants_[i].Squares +=
        other.instants_[i].Squares + apart * apart * here * there / (here + there);
  }
  count_ += other.count_;
}

std::span<const CurveStatistics::Instant> CurveStatistics::InstantsOf(Component component) const {
  return std::span(instants_).subspan(PlaceOf(component) * kInstants, kInstants);
}

std::optional<CurveValues> CurveStatistics::Mean(Component component) const {
  if (count_ == 0) return std::nullopt;
  CurveValues values{};
  std::ranges::transform(InstantsOf(component), values.begin(), &Instant::Mean);
  return values;
}

std::optional<CurveValues> CurveStatistics::Deviation(Component component) const {
  if (count_ < 2) return std::nullopt;
  CurveValues values{};
  std::ranges::transform(InstantsOf(component), values.begin(), [this](const Instant& instant) {
    return std::sqrt(instant.Squares / static_cast<double>(count_ - 1));
  });
  return values;
}

}  // namespace visit
