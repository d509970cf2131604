// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ShownReport.h"

#include <algorithm>
#include <array>

#include "gait/OpenTrial.h"
#include "reports/CheckReport.h"
#include "reports/ReportList.h"
#include "reports/SummaryReport.h"
#include "reports/TrialTables.h"
#include "support/FileSystem.h"
#include "support/Text.h"

namespace app {

using modVantrel::FileState;
using reports::Complaints;
using reports::TableOptions;
using reports::TableOutput;

namespace {

using RowsFunction = Complaints (*)(const FileState&, std::string_view, const TableOptions&,
                                    TableOutput&);

Complaints Summary(const FileState& state, std::string_view file, const TableOptions& /*options*/,
                   TableOutput& table) {
  reports::SummaryRows(state, file, table);
  return {};
}

struct Rows {
  std::string_view Report;
  RowsFunction Write;
};

constexpr std::array kRowsOfReports = {
    Rows{"header", reports::HeaderRows},         Rows{"parameters", reports::ParameterRows},
    Rows{"labels", reports::LabelRows},          Rows{"point", reports::PointRows},
    Rows{"analog", reports::AnalogRows},         Rows{"events", reports::EventRows},
    Rows{"strides", reports::StrideRows},        Rows{"measures", reports::MeasureRows},
    Rows{"normalized", reports::NormalizedRows}, Rows{"summary", Summary},
};

constexpr bool HasItsRows(const reports::ReportInfo& info) {
  return info.Columns.empty() || info.Pools || info.ReadsAnyFile ||
         std::ranges::find(kRowsOfReports, info.Name, &Rows::Report) != kRowsOfReports.end();
}
static_assert(std::ranges::all_of(reports::kReports, HasItsRows));

}  // namespace

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
  const auto* const rows = std::ranges::find(kRowsOfReports, report.Name, &Rows::Report);
  table.Begin(info.Columns);
  TableWriting writing{{}, rows->Write(state, name, report.Options, table)};
  table.End();
  return writing;
}

}  // namespace app
