// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/Component.h"
#include "c3d/GaitEvents.h"
#include "visit/Normals.h"
#include "visit/TrialCurves.h"

// How far a subject's gait lies from normal: Baker et al. 2009, doi 10.1016/j.gaitpost.2009.05.020.
namespace visit {

// One of the nine variables of either side that enter the scores.
struct ScoredVariable {
  std::string_view Name;   // in tables: "KneeAngles.x"
  std::string_view Label;  // without its letter
  modVantrel::Component Part;
  bool IsOfPelvis;  // the same for both sides, so the overall score takes it once
};

inline constexpr std::array kScoredVariables = {
    ScoredVariable{"PelvisAngles.x", "PelvisAngles", modVantrel::Component::X, true},
    ScoredVariable{"PelvisAngles.y", "PelvisAngles", modVantrel::Component::Y, true},
    ScoredVariable{"PelvisAngles.z", "PelvisAngles", modVantrel::Component::Z, true},
    ScoredVariable{"HipAngles.x", "HipAngles", modVantrel::Component::X, false},
    ScoredVariable{"HipAngles.y", "HipAngles", modVantrel::Component::Y, false},
    ScoredVariable{"HipAngles.z", "HipAngles", modVantrel::Component::Z, false},
    ScoredVariable{"KneeAngles.x", "KneeAngles", modVantrel::Component::X, false},
    ScoredVariable{"AnkleAngles.x", "AnkleAngles", modVantrel::Component::X, false},
    ScoredVariable{"FootProgressAngles.z", "FootProgressAngles", modVantrel::Component::Z, false},
};

// The Gait Profile Score in tables, and the side of the one that both sides enter.
inline constexpr std::string_view kProfileScore = "GPS";
inline constexpr std::string_view kOverall = "Overall";

// A score in degrees, missing where something that it needs is missing.
struct Score {
  std::optional<double> Value;
  std::int64_t Count = 0;  // of curves, or of strides for a profile score
};

struct SideScores {
  std::array<Score, kScoredVariables.size()> Variables;  // the Gait Variable Scores
  Score Profile;                                         // the Gait Profile Score
};

struct GaitScores {
  SideScores Left;
  SideScores Right;
  Score Overall;
  std::vector<std::string> Lacking;  // a sentence for each variable without a score
};

// The curves of a subject's trials, for the scores. A Gait Variable Score is the root mean square
// over the 51 instants of the difference between the mean curve over a side's strides and the
// normal mean; the Gait Profile Score of a side that of its nine variables, the overall one that of
// fifteen, the nine of the left and the six of the right that are not the pelvis's.
class Scores {
 public:
  // Whether the curves of a label, in the form of SearchKey, are needed.
  static bool Needs(std::string_view key);

  // The curves of a trial and the sides of its complete strides.
  void Add(const std::vector<LabelCurves>& trial, std::span<const modVantrel::GaitSide> strides);

  GaitScores Against(const Normals& normals) const;

 private:
  SideScores SideAgainst(const Normals& normals, modVantrel::GaitSide side,
                         std::vector<std::string>& lacking) const;
  Score VariableAgainst(const Normals& normals, modVantrel::GaitSide side,
                        const ScoredVariable& variable, std::vector<std::string>& lacking) const;

  std::map<std::string, CurveStatistics> curves_;  // by label as it is compared
  std::int64_t leftStrides_ = 0;
  std::int64_t rightStrides_ = 0;
};

}  // namespace visit
