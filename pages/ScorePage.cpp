// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/ScorePage.h"

#include <utility>

#include "pages/BarRange.h"
#include "pages/PanelLayouts.h"
#include "visit/Scores.h"

namespace pages {

using modVantrel::GaitSide;
using visit::kScoredVariables;

namespace {

constexpr const char* kNoNormals =
    "Scores compare with what is normal: choose a file of normals, in the window by Normals in the "
    "Curves menu, on the command line by --normal FILE.";

visit::GaitScores ScoresOf(const ShownTrials& shown) {
  visit::Scores scores;
  for (std::size_t file = 0; file < shown.Trials().size(); ++file) {
    std::vector<GaitSide> sides;
    for (const TrialStride* stride : shown.StridesOf(file)) {
      if (stride->IsComplete) sides.push_back(stride->Side);
    }
    scores.Add(shown.CurvesForMeans().at(file), sides);
  }
  return scores.Against(*shown.Normals());
}

Bar BarOf(GaitSide side, const visit::Score& score) {
  return {side, score.Count, score.Value, std::nullopt};
}

BarGroup GroupOf(std::string_view name, std::string_view title, std::vector<Bar> bars) {
  BarGroup group;
  group.Name = name;
  group.Title = title;
  group.Bars = std::move(bars);
  return group;
}

std::vector<BarGroup> GroupsOf(const visit::GaitScores& scores) {
  std::vector<BarGroup> groups;
  for (std::size_t i = 0; i < kScoredVariables.size(); ++i) {
    const visit::ScoredVariable& variable = kScoredVariables.at(i);
    groups.push_back(GroupOf(variable.Name, TitleOfAngle(variable.Label, variable.Part),
                             {BarOf(GaitSide::Left, scores.Left.Variables.at(i)),
                              BarOf(GaitSide::Right, scores.Right.Variables.at(i))}));
  }
  groups.push_back(GroupOf(
      visit::kProfileScore, "Gait Profile Score",
      {BarOf(GaitSide::Left, scores.Left.Profile), BarOf(GaitSide::Right, scores.Right.Profile),
       BarOf(GaitSide::None, scores.Overall)}));
  return groups;
}

}  // namespace

Page ScorePage(const ShownTrials& shown) {
  Page page;
  page.Kind = PageKind::Scores;
  page.Title = InfoOf(page.Kind).Title;
  BarPanel panel;
  panel.Title = "Gait Variable Scores and Gait Profile Score";
  panel.Unit = "deg";
  if (shown.Normals() == nullptr) {
    panel.Notes = {kNoNormals};
  } else {
    visit::GaitScores scores = ScoresOf(shown);
    panel.Groups = GroupsOf(scores);
    panel.Notes = std::move(scores.Lacking);
  }
  panel.Ordinate = RangeOfBars(panel.Groups);
  page.Panels.emplace_back(std::move(panel));
  return page;
}

}  // namespace pages
