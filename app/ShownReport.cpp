// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ShownReport.h"

#include <algorithm>

#include "gait/OpenTrial.h"
#include "reports/CheckReport.h"
#include "reports/ReportList.h"
#include "reports/TrialTableList.h"
#include "support/FileSystem.h"
#include "support/Text.h"

namespace app {

using modVantrel::FileState;
using reports::TableOutput;

bool HasTable(const ShownReport& report) {
  const reports::ReportInfo* info = reports::FindReport(report.Name);
  return info != nullptr && !info->Columns.empty();
}

TableWriting WriteTable(const ShownReport& report, const std::string& file, TableOutput& table) {
  const std::string name = modAllPurpose::WithReplacements(file);
  const reports::ReportInfo& info = *reports::FindReport(report.Name);
  if (info.ReadsAnyFile) {
    const auto findings = reports::CheckFile(file);
    const auto unopened = std::ranges::find(findings, "cannot-open", &modVantrel::Finding::Code);
    if (unopened != findings.end() && !modAllPurpose::IsRegularFile(file)) {
      return {file + ": " + unopened->Message, {}};
    }
    table.Begin(info.Columns);
    reports::CheckRows(name, findings, table);
    table.End();
    return {};
  }
  FileState state;
  if (const std::string refusal = OpenTrial(file, modVantrel::Labels::All, state);
      !refusal.empty()) {
    return {file + ": " + refusal, {}};
  }
  TableWriting writing;
  table.Begin(info.Columns);
  reports::WriteTrialRows(reports::FindTrialTable(report.Name), state, name, report.Options, table,
                          writing.Complaints);
  table.End();
  return writing;
}

}  // namespace app
