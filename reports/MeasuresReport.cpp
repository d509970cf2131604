// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/MeasuresReport.h"

#include <fmt/format.h>

#include "gait/EventNames.h"
#include "gait/GcdCalcs.h"
#include "support/NumberForms.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modVantrel::FileState;
using modVantrel::MeasureSpec;
using modVantrel::SideName;
using modVantrel::SingleValueMeasures;

namespace {

void ShowMeasures(const SingleValueMeasures& measures, ReportOutput& output) {
  output.Line(fmt::format("{} Side #{}", SideName(measures.Side), measures.Number));
  for (const MeasureSpec& measure : modVantrel::MeasureTable()) {
    if (measure.ReportName.empty()) continue;
    output.Line(fmt::format("    {:<25}{}", fmt::format("{}:", measure.ReportName),
                            modAllPurposeNumbers::GeneralForm(measure.ValueOf(measures))));
  }
  output.Line("");
}

}  // namespace

void ShowSingleValueStrikeOffMeasures(const FileState& state, ReportOutput& output) {
  output.BeginReport();
  modVantrel::clsGcdCalcs calcs(state);
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    ShowMeasures(calcs.CalcSingleValueMeasures(i), output);
  }
  output.Line("");
}

}  // namespace reports
