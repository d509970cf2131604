// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/MeasuresReport.h"

#include <fmt/format.h>

#include "gait/EventNames.h"
#include "gait/GcdCalcs.h"
#include "support/NumberForms.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modVantrel::FileState;
using modVantrel::SideName;
using modVantrel::SingleValueMeasures;

namespace {

void Measure(ReportOutput& output, std::string_view name, float value) {
  output.Line(fmt::format("    {:<25}{}", name, modAllPurposeNumbers::GeneralForm(value)));
}

void ShowMeasures(const SingleValueMeasures& measures, ReportOutput& output) {
  output.Line(fmt::format("{} Side #{}", SideName(measures.Side), measures.Number));
  Measure(output, "Stridetime:", measures.StrideTime);
  Measure(output, "Cadence:", measures.Cadence);
  Measure(output, "StepTimePct:", measures.StepTimePct);
  Measure(output, "OppositeFootOffPct:", measures.OppositeFootOffPct);
  Measure(output, "OppositeFootStrikePct:", measures.OppositeFootStrikePct);
  Measure(output, "SameFootOffPct:", measures.SameFootOffPct);
  Measure(output, "SingleSupportPct:", measures.SingleSupportPct);
  Measure(output, "DoubleSupportPct:", measures.DoubleSupportPct);
  Measure(output, "StrideLength:", measures.StrideLength);
  Measure(output, "StepLength:", measures.StepLength);
  Measure(output, "Speed:", measures.Speed);
  Measure(output, "VideoRate:", measures.VideoRate);
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
