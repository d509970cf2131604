// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/CheckUnits.h"

#include <fmt/format.h>

#include "gait/CheckText.h"
#include "gait/Checks.h"
#include "gait/LengthUnit.h"
#include "support/Text.h"

namespace modVantrel {

namespace {

// The unit without what fills its field, in upper case.
std::string UnitKey(std::string_view unit) {
  return modAllPurpose::SearchKey(modAllPurpose::WithoutFilling(unit));
}

bool IsMomentUnit(std::string unit) {
  std::erase(unit, ' ');
  std::string_view force = unit;
  if (force.ends_with("/KG")) force.remove_suffix(std::string_view("/KG").size());
  return force == "NMM" || force == "N.MM";
}

// A point that the file lists as a moment; empty where there is none.
std::string AnyMoment(const CheckedTrial& trial) {
  for (const std::string& label : trial.State.PointLabels) {
    if (!label.empty() && trial.Kinds->KindOf(label) == PointKind::Moment) return label;
  }
  return {};
}

void CheckMomentUnits(const CheckedTrial& trial, Findings& findings) {
  const std::string moment = AnyMoment(trial);
  if (moment.empty()) return;
  const std::string& unit = trial.Kinds->UnitOf(moment);
  const std::string key = UnitKey(unit);
  if (key.empty() || IsMomentUnit(key)) return;
  findings.Add("moment-units", "POINT:MOMENT_UNITS",
               fmt::format("Moments are in {}, but GCD files take them for Nmm and hold one "
                           "thousandth of each value: the moments there come out wrong.",
                           Shown(unit)));
}

}  // namespace

std::optional<double> MetresPerUnit(const CheckedTrial& trial) {
  const auto unit = trial.Param("POINT", "UNITS").TextValues.First();
  if (!unit) return std::nullopt;
  return MetresPerUnit(*unit);
}

void CheckUnits(const CheckedTrial& trial, Findings& findings) {
  CheckMomentUnits(trial, findings);
  if (MetresPerUnit(trial)) return;
  const auto unit = trial.Param("POINT", "UNITS").TextValues.First();
  const std::string found =
      unit && !UnitKey(*unit).empty()
          ? fmt::format("POINT:UNITS is \"{}\" and neither mm, cm nor m", Shown(*unit))
          : "POINT:UNITS does not say in which unit positions are";
  findings.Add("units", "POINT:UNITS",
               fmt::format("{}: lengths and speeds are worked out as if it were mm.", found));
}

}  // namespace modVantrel
