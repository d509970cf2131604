// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "c3d/Component.h"
#include "c3d/GaitEvents.h"
#include "visit/TrialCurves.h"

namespace visit {

// How far the curves of a label lie apart from stride to stride: at each of the 51 instants the
// sample standard deviation over the strides of a side, then its mean over the instants.
struct VariabilityRow {
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;
  std::string Label;  // as the first file spells it
  modVantrel::Component Part = modVantrel::Component::X;
  std::int64_t Count = 0;           // curves
  std::optional<double> Deviation;  // missing for a single curve
  std::string Unit;                 // that of the first file
};

// The curves of each label over the trials of a visit. Labels are compared without case and stand
// in the order in which the trials first have them.
class Variability {
 public:
  void Add(const std::vector<LabelCurves>& trial);

  // By side, then label, then component; a label without a curve of the side has no row.
  std::vector<VariabilityRow> Rows() const;

 private:
  std::vector<LabelCurves> labels_;
  std::map<std::string, std::size_t> places_;  // in labels_, by label as it is compared
};

}  // namespace visit
