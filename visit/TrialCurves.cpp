// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/TrialCurves.h"

#include <set>
#include <utility>

#include "c3d/PointKinds.h"
#include "gait/GcdCalcs.h"
#include "support/Text.h"
#include "visit/StrideSelection.h"

namespace visit {

using modVantrel::FileState;
using modVantrel::GaitSide;
using modVantrel::StrideRecord;

namespace {

// A calculation of its own for each label, so that no more than one label's samples are held.
void AddCurves(const FileState& state, std::int32_t label, const std::vector<std::int32_t>& strides,
               LabelCurves& curves) {
  const GaitSide ownSide = SideOfLabel(curves.Label);
  modVantrel::clsGcdCalcs calcs(state);
  for (const std::int32_t i : strides) {
    const StrideRecord& stride = state.GaitEvents.ValidStrides[i];
    if (ownSide != GaitSide::None && stride.Side != ownSide) continue;
    if (!IsSeenThrough(state, calcs.SamplesOfPoint(label), stride)) continue;
    curves.Of(stride.Side).Add(calcs.NormalizePointForStride(label, i));
  }
}

}  // namespace

GaitSide SideOfLabel(std::string_view label) {
  const std::string letter = modAllPurpose::UpperCase(modAllPurpose::Trimmed(label).substr(0, 1));
  if (letter == "L") return GaitSide::Left;
  if (letter == "R") return GaitSide::Right;
  return GaitSide::None;
}

std::vector<LabelCurves> CurvesOfTrial(const FileState& state, const LabelChoice& isWanted) {
  const auto strides = CompleteStrides(state);
  const modVantrel::PointKinds kinds(state);
  std::vector<LabelCurves> labels;
  std::set<std::string> known;
  for (std::int32_t i = 1; i <= state.PointLabels.Count(); ++i) {
    const std::string key = modAllPurpose::SearchKey(state.PointLabels[i]);
    if (key.empty() || !known.insert(key).second || !isWanted(key)) continue;
    LabelCurves curves{state.PointLabels[i], kinds.UnitOf(key), {}, {}};
    AddCurves(state, i, strides, curves);
    labels.push_back(std::move(curves));
  }
  return labels;
}

}  // namespace visit
