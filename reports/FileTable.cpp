// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/FileTable.h"

#include <utility>

#include "gait/Checkup.h"
#include "gait/OpenTrial.h"
#include "reports/CheckReport.h"
#include "reports/TrialTableList.h"
#include "support/MessageOf.h"
#include "support/Text.h"

namespace reports {

namespace {

Complaints WriteOpened(const TrialTable& trialTable, const std::string& file,
                       const TableOptions& options, TableOutput& table) {
  Complaints said;
  std::string failure = modAllPurpose::MessageOf([&] {
    modVantrel::FileState state;
    std::string refusal = OpenTrial(file, modVantrel::Labels::All, state);
    if (!refusal.empty()) return refusal;
    WriteTrialRows(trialTable, state, modAllPurpose::WithReplacements(file), options, table, said);
    return refusal;
  });
  if (failure.empty()) return said;
  table.DropRow();
  said.push_back(std::move(failure));
  return said;
}

}  // namespace

FileRows WriteFileRows(const ReportInfo& report, const std::string& file,
                       const TableOptions& options, TableOutput& table) {
  if (report.ReadsAnyFile) {
    const auto findings = CheckFile(file);
    CheckRows(modAllPurpose::WithReplacements(file), findings, table);
    return {{}, HasError(findings)};
  }
  Complaints said = WriteOpened(FindTrialTable(report.Name), file, options, table);
  const bool failed = !said.empty();
  return {std::move(said), failed};
}

}  // namespace reports
