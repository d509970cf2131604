// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/CheckReport.h"

#include <string>

#include "reports/AlignedText.h"

namespace reports {

using modVantrel::Finding;

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
  AlignedText text({{"", Align::Left}, {"", Align::Left}, {"", Align::Left}});
  for (const Finding& finding : findings) {
    text.AddRow({std::string(SeverityName(finding.Level)), finding.Place, finding.Message});
  }
  text.Print(output);
}

}  // namespace reports
