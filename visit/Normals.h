// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "c3d/Component.h"
#include "visit/CurveStatistics.h"

namespace visit {

// A component of a variable as it is among controls. Values that a file leaves empty are NaN.
struct NormalCurve {
  CurveValues Mean{};
  CurveValues Deviation{};
  std::string Unit;  // as the file spells it; empty where it names none
};

// A measure as it is among controls.
struct NormalMeasure {
  std::optional<double> Mean;
  std::optional<double> Deviation;
};

// What is normal, as a file of normals tells it.
class Normals {
 public:
  // The curve of a label without its letter, "KneeAngles", in its unit, or where that is empty in
  // the unit of trials (moments in Nmm); case does not count. Null where there is none.
  const NormalCurve* Curve(std::string_view label, modVantrel::Component component) const;
  // By its name in tables, "cadence". Null where there is none.
  const NormalMeasure* Measure(std::string_view name) const;

  bool IsEmpty() const { return curves_.empty() && measures_.empty(); }

  // The place of a curve or measure, made where there is none yet.
  NormalCurve& CurveAt(std::string_view label, modVantrel::Component component);
  NormalMeasure& MeasureAt(std::string_view name);

 private:
  std::map<std::pair<std::string, modVantrel::Component>, NormalCurve> curves_;
  std::map<std::string, NormalMeasure> measures_;
};

}  // namespace visit
