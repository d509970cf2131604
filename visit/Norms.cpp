// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/Norms.h"

#include "support/Text.h"
#include "visit/Summary.h"

namespace visit {

using modVantrel::Component;
using modVantrel::GaitSide;

namespace {

void AddMeanCurve(const CurveStatistics& side, CurveStatistics& samples) {
  if (side.Count() == 0) return;
  samples.Add({*side.Mean(Component::X), *side.Mean(Component::Y), *side.Mean(Component::Z)});
}

void AddMean(const Statistics& side, Statistics& samples) {
  if (const auto mean = side.Mean()) samples.Add(*mean);
}

}  // namespace

bool IsNormLabel(std::string_view label) {
  return modAllPurpose::Trimmed(label).size() > 1 && SideOfLabel(label) != GaitSide::None;
}

void Norms::Add(const std::vector<LabelCurves>& curves, std::span<const GaitMeasures> strides) {
  for (const LabelCurves& label : curves) {
    if (!IsNormLabel(label.Label)) continue;
    const std::string name(modAllPurpose::Trimmed(label.Label).substr(1));
    const auto [place, isNew] = places_.emplace(modAllPurpose::SearchKey(name), curves_.size());
    if (isNew) curves_.push_back({name, label.Unit, {}});
    AddMeanCurve(label.Left, curves_[place->second].Samples);
    AddMeanCurve(label.Right, curves_[place->second].Samples);
  }
  const Summary summary(strides);
  for (std::size_t i = 0; i < kGaitMeasureCount; ++i) {
    AddMean(summary.Measures()[i].Left, measures_[i]);
    AddMean(summary.Measures()[i].Right, measures_[i]);
  }
}

}  // namespace visit
