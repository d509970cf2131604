// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/ShownTrials.h"

#include <array>
#include <utility>

#include "gait/EventNames.h"
#include "support/Text.h"

namespace pages {

using modAllPurpose::SearchKey;
using modVantrel::Component;
using modVantrel::GaitSide;
using visit::LabelCurves;

namespace {

// A curve whose unit is `ratio` times that of the trials before it.
std::array<visit::CurveValues, 3> Scaled(const modVantrel::NormalizedCurve& curve, double ratio) {
  std::array<visit::CurveValues, 3> scaled{};
  for (std::size_t part = 0; part < scaled.size(); ++part) {
    const Component component = modVantrel::kComponents.at(part);
    for (std::size_t i = 0; i < visit::kInstants; ++i) {
      const auto& point = curve[static_cast<std::int32_t>(i) + 1];
      scaled.at(part).at(i) = double{ComponentOf(point, component)} * ratio;
    }
  }
  return scaled;
}

}  // namespace

std::string WithLetter(GaitSide side, std::string_view label) {
  std::string name(modVantrel::SideName(side).substr(0, 1));
  return name.append(label);
}

std::string_view ShortName(std::string_view file) {
  return file.substr(file.find_last_of("/\\") + 1);
}

ShownTrials::ShownTrials(std::span<const TrialValues> trials, const PageChoice& choice)
    : trials_(trials), choice_(choice) {
  for (const TrialValues& trial : trials_) {
    auto& labels = labels_.emplace_back();
    for (const TrialLabel& label : trial.Labels) labels.emplace(SearchKey(label.Label), &label);
  }
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

const TrialLabel* ShownTrials::FindLabel(std::size_t file, GaitSide side,
                                         std::string_view label) const {
  const auto found = labels_.at(file).find(SearchKey(WithLetter(side, label)));
  return found == labels_.at(file).end() ? nullptr : found->second;
}

ShownUnit ShownTrials::UnitOf(modVantrel::PointKind kind, std::string_view label) const {
  for (std::size_t file = 0; file < trials_.size(); ++file) {
    for (const GaitSide side : kSides) {
      const TrialLabel* found = FindLabel(file, side, label);
      if (found != nullptr) return UnitShownFor(kind, found->Unit);
    }
  }
  if (trials_.empty()) return UnitShownFor(kind, "");
  const auto unit = trials_.front().Units.find(kind);
  return UnitShownFor(kind, unit == trials_.front().Units.end() ? "" : unit->second);
}

std::vector<LabelCurves> ShownTrials::CurvesOf(std::size_t file) const {
  const TrialValues& trial = trials_[file];
  std::vector<LabelCurves> labels;
  for (const TrialLabel& label : trial.Labels) {
    LabelCurves curves{label.Label, label.Unit, {}, {}};
    const std::string name = SearchKey(label.Label).substr(1);
    const double ratio =
        UnitShownFor(label.Kind, label.Unit).Factor / UnitOf(label.Kind, name).Factor;
    for (const LabelStride& stride : label.Strides) {
      const TrialStride& record = trial.Strides.at(stride.Stride);
      if (!stride.EntersMeans || !IsShown(file, record)) continue;
      if (ratio == 1) {
        curves.Of(record.Side).Add(stride.Curve);
      } else {
        curves.Of(record.Side).Add(Scaled(stride.Curve, ratio));
      }
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
