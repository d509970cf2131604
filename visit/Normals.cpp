// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/Normals.h"

#include "support/Text.h"

namespace visit {

using modAllPurpose::SearchKey;
using modVantrel::Component;

const NormalCurve* Normals::Curve(std::string_view label, Component component) const {
  const auto found = curves_.find({SearchKey(label), component});
  return found == curves_.end() ? nullptr : &found->second;
}

const NormalMeasure* Normals::Measure(std::string_view name) const {
  const auto found = measures_.find(SearchKey(name));
  return found == measures_.end() ? nullptr : &found->second;
}

NormalCurve& Normals::CurveAt(std::string_view label, Component component) {
  return curves_[{SearchKey(label), component}];
}

NormalMeasure& Normals::MeasureAt(std::string_view name) { return measures_[SearchKey(name)]; }

}  // namespace visit
