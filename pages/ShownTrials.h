// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/GaitEvents.h"
#include "pages/MakePages.h"
#include "pages/Page.h"
#include "pages/PageUnits.h"
#include "pages/TrialValues.h"
#include "visit/TrialCurves.h"

namespace pages {

// The sides that curves have, in the order of pages.
inline constexpr std::array kSides = {modVantrel::GaitSide::Left, modVantrel::GaitSide::Right};

// "LKneeAngles" of "KneeAngles".
std::string WithLetter(modVantrel::GaitSide side, std::string_view label);

// The trials of a choice: what is left out of it counts nowhere. Every page of a choice is made
// from this, so that no two of them differ in what they take. Trials and choice must outlive it.
class ShownTrials {
 public:
  ShownTrials(std::span<const TrialValues> trials, const PageChoice& choice);

  std::span<const TrialValues> Trials() const { return trials_; }
  const PageChoice& Choice() const { return choice_; }
  // Null where none was chosen.
  const visit::Normals* Normals() const { return choice_.Normals; }

  bool IsShown(std::size_t file, const TrialStride& stride) const;
  // The strides of a file, from 0, that are not left out.
  std::vector<const TrialStride*> StridesOf(std::size_t file) const;

  // The label of that side in a file, as names are compared; null where there is none.
  const TrialLabel* FindLabel(std::size_t file, modVantrel::GaitSide side,
                              std::string_view label) const;
  // The unit in which a label, without its letter, is shown: that of the first trial that has it;
  // of a label that none has, that of the kind in the first trial.
  ShownUnit UnitOf(modVantrel::PointKind kind, std::string_view label) const;

  // The curves of each trial that enter means, label by label as the trial has them.
  const std::vector<std::vector<visit::LabelCurves>>& CurvesForMeans() const { return curves_; }
  // Those of all trials together, in the unit of the first one.
  visit::CurveStatistics Pooled(modVantrel::GaitSide side, std::string_view label) const;

 private:
  std::vector<visit::LabelCurves> CurvesOf(std::size_t file) const;

  std::span<const TrialValues> trials_;
  const PageChoice& choice_;
  std::vector<std::map<std::string, const TrialLabel*>> labels_;  // of each file, as compared
  std::vector<std::vector<visit::LabelCurves>> curves_;
};

// The name of a file without its folders.
std::string_view ShortName(std::string_view file);

}  // namespace pages
