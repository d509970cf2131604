// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/FileState.h"
#include "c3d/GaitEvents.h"
#include "visit/CurveStatistics.h"

namespace visit {

// The side whose strides a label belongs to by its first letter, L or R in either case, behind the
// blanks that a cut prefix may leave; none for any other label, which belongs to both.
modVantrel::GaitSide SideOfLabel(std::string_view label);

// The curves of one label over the complete strides in which it is seen throughout. A label of one
// side has curves of that side alone.
struct LabelCurves {
  std::string Label;  // as the file spells it
  std::string Unit;   // empty where the file names none
  CurveStatistics Left;
  CurveStatistics Right;

  CurveStatistics& Of(modVantrel::GaitSide side) {
    return side == modVantrel::GaitSide::Left ? Left : Right;
  }
  const CurveStatistics& Of(modVantrel::GaitSide side) const {
    return side == modVantrel::GaitSide::Left ? Left : Right;
  }
};

// Says of a label, in the form of modAllPurpose::SearchKey, whether its curves are wanted.
using LabelChoice = std::function<bool(const std::string& key)>;

// The wanted labels of an open trial in its order, with or without curves. Empty labels are left
// out; of several equal ones the first stays. Errors as clsGcdCalcs.
std::vector<LabelCurves> CurvesOfTrial(const modVantrel::FileState& state,
                                       const LabelChoice& isWanted);

}  // namespace visit
