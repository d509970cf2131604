// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/SummaryReport.h"

#include <fmt/format.h>

#include "reports/AlignedText.h"
#include "reports/PooledNumbers.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modVantrel::FileState;
using visit::GaitMeasureSpec;
using visit::SideStatistics;
using visit::Statistics;
using visit::Summary;

namespace {

std::string SideText(const Statistics& side, const GaitMeasureSpec& measure) {
  return StatisticsText(side.Mean(), side.Deviation(), side.Count(), DecimalsFor(measure.Unit));
}

}  // namespace

void SummaryValues(const Summary& summary, std::size_t i, TableOutput& table) {
  const GaitMeasureSpec& measure = visit::GaitMeasureTable()[i];
  const SideStatistics& sides = summary.Measures()[i];
  table.Text(measure.Name);
  table.Text(measure.Unit);
  StatisticsValues(table, sides.Left);
  StatisticsValues(table, sides.Right);
  NumberOrMissing(table, Asymmetry(sides));
}

void SummaryRows(const FileState& state, std::string_view file, TableOutput& table) {
  const Summary summary(visit::MeasuresOfStrides(state));
  for (std::size_t i = 0; i < visit::kGaitMeasureCount; ++i) {
    table.Text(file);
    SummaryValues(summary, i, table);
    table.EndRow();
  }
}

void ShowSummaryText(const Summary& summary, ReportOutput& output) {
  AlignedText text({{"Measure"},
                    {"Unit"},
                    {"Left", Align::Right},
                    {"Right", Align::Right},
                    {"Asymmetry (%)", Align::Right}});
  for (std::size_t i = 0; i < visit::kGaitMeasureCount; ++i) {
    const GaitMeasureSpec& measure = visit::GaitMeasureTable()[i];
    const SideStatistics& sides = summary.Measures()[i];
    text.AddRow({visit::MeasureTitle(measure.Name), std::string(measure.Unit),
                 SideText(sides.Left, measure), SideText(sides.Right, measure),
                 NumberText(Asymmetry(sides), 1)});
  }
  text.Print(output);
}

void ShowSummary(const FileState& state, ReportOutput& output) {
  const Summary summary(visit::MeasuresOfStrides(state));
  output.BeginReport();
  ShowSummaryText(summary, output);
}

}  // namespace reports
