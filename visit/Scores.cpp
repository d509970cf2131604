// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/Scores.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "gait/EventNames.h"
#include "support/Text.h"

namespace visit {

using modAllPurpose::SearchKey;
using modVantrel::GaitSide;
using modVantrel::SideName;

namespace {

std::string KeyOf(GaitSide side, const ScoredVariable& variable) {
  return SearchKey(fmt::format("{}{}", SideName(side).substr(0, 1), variable.Label));
}

double RootMeanSquare(double squares, std::size_t count) {
  return std::sqrt(squares / static_cast<double>(count));
}

double RootMeanSquareBetween(const CurveValues& curve, const CurveValues& normal) {
  double squares = 0;
  for (std::size_t i = 0; i < kInstants; ++i) {
    squares += (curve[i] - normal[i]) * (curve[i] - normal[i]);
  }
  return RootMeanSquare(squares, kInstants);
}

// The root mean square of scores; missing where one of them is.
std::optional<double> Together(std::span<const Score* const> scores) {
  double squares = 0;
  for (const Score* score : scores) {
    if (!score->Value) return std::nullopt;
    squares += *score->Value * *score->Value;
  }
  return RootMeanSquare(squares, scores.size());
}

enum class Pelvis { Counted, LeftOut };

std::vector<const Score*> VariablesOf(const SideScores& side, Pelvis pelvis) {
  std::vector<const Score*> scores;
  for (std::size_t i = 0; i < kScoredVariables.size(); ++i) {
    if (kScoredVariables[i].IsOfPelvis && pelvis == Pelvis::LeftOut) continue;
    scores.push_back(&side.Variables[i]);
  }
  return scores;
}

}  // namespace

bool Scores::Needs(std::string_view key) {
  return std::ranges::any_of(kScoredVariables, [key](const ScoredVariable& variable) {
    return key == KeyOf(GaitSide::Left, variable) || key == KeyOf(GaitSide::Right, variable);
  });
}

void Scores::Add(const std::vector<LabelCurves>& trial, std::span<const GaitSide> strides) {
  for (const LabelCurves& label : trial) {
    const CurveStatistics& curves = label.Of(SideOfLabel(label.Label));
    curves_[SearchKey(label.Label)].Merge(curves);
  }
  leftStrides_ += std::ranges::count(strides, GaitSide::Left);
  rightStrides_ += std::ranges::count(strides, GaitSide::Right);
}

Score Scores::VariableAgainst(const Normals& normals, GaitSide side, const ScoredVariable& variable,
                              std::vector<std::string>& lacking) const {
  Score score;
  const auto lack = [&](std::string_view why) {
    lacking.push_back(fmt::format("{} {}: {}", SideName(side), variable.Name, why));
    return score;
  };
  const auto curves = curves_.find(KeyOf(side, variable));
  if (curves == curves_.end() || curves->second.Count() == 0) return lack("no curve in the trials");
  score.Count = curves->second.Count();
  const NormalCurve* normal = normals.Curve(variable.Label, variable.Part);
  if (normal == nullptr) return lack("no curve in the normals");
  const double value = RootMeanSquareBetween(*curves->second.Mean(variable.Part), normal->Mean);
  if (!std::isfinite(value)) return lack("a value of its curves is missing");
  score.Value = value;
  return score;
}

SideScores Scores::SideAgainst(const Normals& normals, GaitSide side,
                               std::vector<std::string>& lacking) const {
  SideScores scores;
  for (std::size_t i = 0; i < kScoredVariables.size(); ++i) {
    scores.Variables[i] = VariableAgainst(normals, side, kScoredVariables[i], lacking);
  }
  scores.Profile = {Together(VariablesOf(scores, Pelvis::Counted)),
                    side == GaitSide::Left ? leftStrides_ : rightStrides_};
  return scores;
}

GaitScores Scores::Against(const Normals& normals) const {
  GaitScores scores;
  scores.Left = SideAgainst(normals, GaitSide::Left, scores.Lacking);
  scores.Right = SideAgainst(normals, GaitSide::Right, scores.Lacking);
  auto fifteen = VariablesOf(scores.Left, Pelvis::Counted);
  const auto six = VariablesOf(scores.Right, Pelvis::LeftOut);
  fifteen.insert(fifteen.end(), six.begin(), six.end());
  scores.Overall = {Together(fifteen), leftStrides_ + rightStrides_};
  return scores;
}

}  // namespace visit
