// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/CheckReport.h"

#include <string>
#include <utility>

#include "reports/AlignedText.h"
#include "visit/GaitMeasures.h"

namespace reports {

using modVantrel::Finding;

namespace {

// The measures of a stride that are not missing, by the names that they have in a summary.
modVantrel::SummaryStride StrideOf(const visit::GaitMeasures& measures) {
  modVantrel::SummaryStride stride{measures.Side, {}};
  for (const visit::GaitMeasureSpec& measure : visit::GaitMeasureTable()) {
    if (const auto& value = measures.*measure.Value) stride.Values[measure.Name] = *value;
  }
  return stride;
}

std::vector<modVantrel::SummaryStride> StridesOf(const modVantrel::FileState& state) {
  std::vector<modVantrel::SummaryStride> strides;
  for (const auto& measures : visit::MeasuresOfStrides(state)) {
    strides.push_back(StrideOf(measures));
  }
  return strides;
}

}  // namespace

std::vector<Finding> CheckFile(const std::string& file) {
  return modVantrel::CheckTrial(file, StridesOf);
}

void CheckRows(std::string_view file, const std::vector<Finding>& findings, TableOutput& table) {
  for (const Finding& finding : findings) {
    table.Text(file);
    table.Text(SeverityName(finding.Level));
    table.Text(finding.Code);
    table.TextOrMissing(finding.Place);
    table.Text(finding.Message);
    table.EndRow();
  }
}

void ShowFindings(const std::vector<Finding>& findings, modAllPurpose::ReportOutput& output) {
  output.BeginReport();
  if (findings.empty()) {
    output.Line("Nothing unusual was found.");
    return;
  }
  AlignedText text({{"", Align::Left}, {"", Align::Left}, {"", Align::Left}, {"", Align::Left}});
  for (const Finding& finding : findings) {
    text.AddRow(
        {std::string(SeverityName(finding.Level)), finding.Code, finding.Place, finding.Message});
  }
  text.Print(output);
}

}  // namespace reports
