// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/reports/AllReports.h"

#include <functional>

#include "gait/GcdCalcs.h"
#include "gait/GcdText.h"
#include "reports/HeaderReport.h"
#include "reports/ListingReport.h"
#include "reports/MeasuresReport.h"
#include "reports/NavigationTree.h"
#include "reports/NormalizedReport.h"
#include "reports/ParameterReport.h"
#include "reports/StrideReport.h"
#include "reports/StrikeOffReport.h"
#include "reports/SummaryReport.h"
#include "tests/GaitTrials.h"

namespace tests {

using modAllPurpose::ReportOutput;
using modVantrel::FileState;

namespace {

using Plain = void (*)(const FileState&, ReportOutput&);
using OfLabel = modAllPurpose::ReportResult (*)(const FileState&, std::string_view, ReportOutput&);

void AddOfLabel(std::map<std::string, std::string>& texts, const FileState& state,
                const std::string& name, OfLabel report,
                const modAllPurpose::OneBasedTable<std::string>& labels) {
  for (const std::string& label : labels) {
    std::string title = name;
    title += ' ';
    title += label;
    texts[title] = TextOf([&](ReportOutput& output) { (void)report(state, label, output); });
  }
}

}  // namespace

std::map<std::string, std::string> AllReportsOf(const FileState& state) {
  std::map<std::string, std::string> texts;
  const std::map<std::string, Plain> plain = {
      {"groups", reports::ShowAllGroups},
      {"parameters", reports::ShowAllGroupsAndAllParams},
      {"tree", reports::ShowTree},
      {"labels", reports::ShowPointLabels},
      {"events", reports::ShowStrikeOffEvents},
      {"strides", reports::ShowStrides},
      {"measures", reports::ShowSingleValueStrikeOffMeasures},
      {"summary", reports::ShowSummary}};
  for (const auto& [name, report] : plain) {
    texts[name] = TextOf([&, show = report](ReportOutput& output) { show(state, output); });
  }
  AddOfLabel(texts, state, "point", reports::ShowPointData, state.PointLabels);
  AddOfLabel(texts, state, "point with events", reports::ShowPointDataWithEvents,
             state.PointLabels);
  AddOfLabel(texts, state, "normalized", reports::ShowNormalized, state.PointLabels);
  AddOfLabel(texts, state, "analog", reports::ShowAnalogData, state.AnalogLabels);
  AddOfLabel(texts, state, "analog with events", reports::ShowAnalogDataWithEvents,
             state.AnalogLabels);
  modVantrel::clsGcdCalcs calcs(state);
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    texts[Numbered("gcd ", i)] = GcdText(calcs, i, {});
  }
  return texts;
}

}  // namespace tests
