// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/ScoresReport.h"

#include <utility>
#include <vector>

#include "gait/EventNames.h"
#include "reports/AlignedText.h"
#include "reports/PooledNumbers.h"
#include "visit/Scores.h"
#include "visit/StrideSelection.h"

namespace reports {

using modVantrel::GaitSide;
using modVantrel::SideName;
using visit::GaitScores;
using visit::kScoredVariables;
using visit::Score;
using visit::SideScores;

namespace {

void WriteScore(std::string_view side, std::string_view variable, const Score& score,
                TableOutput& table) {
  table.Text(side);
  table.Text(variable);
  NumberOrMissing(table, score.Value);
  table.Number(score.Count);
  table.Text("deg");
  table.EndRow();
}

void WriteVariables(GaitSide side, const SideScores& scores, TableOutput& table) {
  for (std::size_t i = 0; i < kScoredVariables.size(); ++i) {
    WriteScore(SideName(side), kScoredVariables[i].Name, scores.Variables[i], table);
  }
}

std::string ScoreText(const Score& score) { return CountedText(score.Value, score.Count, 1); }

class ScoresReport : public PooledReport {
 public:
  explicit ScoresReport(visit::Normals normals) : normals_(std::move(normals)) {}

  std::function<void()> Read(const modVantrel::FileState& trial) override {
    auto curves = visit::CurvesOfTrial(trial, visit::Scores::Needs);
    std::vector<GaitSide> sides;
    for (const std::int32_t i : visit::CompleteStrides(trial)) {
      sides.push_back(trial.GaitEvents.ValidStrides[i].Side);
    }
    return [this, curves = std::move(curves), sides = std::move(sides)] {
      scores_.Add(curves, sides);
    };
  }

  Complaints WriteRows(TableOutput& table) const override {
    const GaitScores scores = scores_.Against(normals_);
    WriteVariables(GaitSide::Left, scores.Left, table);
    WriteVariables(GaitSide::Right, scores.Right, table);
    WriteScore(SideName(GaitSide::Left), visit::kProfileScore, scores.Left.Profile, table);
    WriteScore(SideName(GaitSide::Right), visit::kProfileScore, scores.Right.Profile, table);
    WriteScore(visit::kOverall, visit::kProfileScore, scores.Overall, table);
    return scores.Lacking;
  }

  Complaints ShowText(modAllPurpose::ReportOutput& output) const override {
    const GaitScores scores = scores_.Against(normals_);
    AlignedText text({{"Score (deg)"},
                      {"Left", Align::Right},
                      {"Right", Align::Right},
                      {"Overall", Align::Right}});
    for (std::size_t i = 0; i < kScoredVariables.size(); ++i) {
      text.AddRow({std::string(kScoredVariables[i].Name), ScoreText(scores.Left.Variables[i]),
                   ScoreText(scores.Right.Variables[i]), ""});
    }
    text.AddRow({std::string(visit::kProfileScore), ScoreText(scores.Left.Profile),
                 ScoreText(scores.Right.Profile), ScoreText(scores.Overall)});
    output.BeginReport();
    text.Print(output);
    return scores.Lacking;
  }

 private:
  visit::Normals normals_;
  visit::Scores scores_;
};

}  // namespace

std::unique_ptr<PooledReport> MakeScoresReport(const TableOptions& /*options*/,
                                               visit::Normals normals) {
  return std::make_unique<ScoresReport>(std::move(normals));
}

}  // namespace reports
