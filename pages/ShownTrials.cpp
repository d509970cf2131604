// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/ShownTrials.h"

#include <algorithm>
#include <utility>

#include "gait/EventNames.h"
#include "support/Text.h"

namespace pages {

using modAllPurpose::SearchKey;
using modVantrel::GaitSide;
using visit::LabelCurves;

std::string WithLetter(GaitSide side, std::string_view label) {
  std::string name(modVantrel::SideName(side).substr(0, 1));
  return name.append(label);
}

const TrialLabel* FindLabel(const TrialValues& trial, std::string_view label) {
  const std::string key = SearchKey(label);
  const auto found = std::ranges::find(
      trial.Labels, key, [](const TrialLabel& candidate) { return SearchKey(candidate.Label); });
  return found == trial.Labels.end() ? nullptr : &*found;
}

std::string_view ShortName(std::string_view file) {
  return file.substr(file.find_last_of("/\\") + 1);
}

ShownTrials::ShownTrials(std::span<const TrialValues> trials, const PageChoice& choice)
    : trials_(trials), choice_(choice) {
  for (std::size_t file = 0; file < trials_.size(); ++file) curves_.push_back(CurvesOf(file));
}

bool ShownTrials::IsShown(std::size_t file, const TrialStride& stride) const {
  return !choice_.LeftOut.contains({file, stride.Side, stride.Number});
}

std::vector<const TrialStride*> ShownTrials::StridesOf(std::size_t file) const {
  std::vector<const TrialStride*> strides;
  for (const TrialStride& stride : trials_[file].Strides) {
    if (IsShown(file, stride)) strides.push_back(&stride);
  }
  return strides;
}

std::vector<LabelCurves> ShownTrials::CurvesOf(std::size_t file) const {
  const TrialValues& trial = trials_[file];
  std::vector<LabelCurves> labels;
  for (const TrialLabel& label : trial.Labels) {
    LabelCurves curves{label.Label, label.Unit, {}, {}};
    for (const LabelStride& stride : label.Strides) {
      const TrialStride& record = trial.Strides.at(stride.Stride);
      if (!stride.EntersMeans || !IsShown(file, record)) continue;
      curves.Of(record.Side).Add(stride.Curve);
    }
    labels.push_back(std::move(curves));
  }
  return labels;
}

visit::CurveStatistics ShownTrials::Pooled(GaitSide side, std::string_view label) const {
  const std::string key = SearchKey(WithLetter(side, label));
  visit::CurveStatistics pooled;
  for (const auto& trial : curves_) {
    for (const LabelCurves& curves : trial) {
      if (SearchKey(curves.Label) == key) pooled.Merge(curves.Of(side));
    }
  }
  return pooled;
}

}  // namespace pages
