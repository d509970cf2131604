// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/TrialTableList.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "reports/ReportList.h"
#include "reports/SummaryReport.h"
#include "reports/TrialTables.h"

namespace reports {

namespace {

Complaints Summary(const modVantrel::FileState& state, std::string_view file,
                   const TableOptions& /*options*/, TableOutput& table) {
  SummaryRows(state, file, table);
  return {};
}

constexpr std::array kTrialTables = {
    TrialTable{"header", HeaderRows},
    TrialTable{"parameters", ParameterRows},
    TrialTable{"labels", LabelRows},
    TrialTable{"point", PointRows, MissingPoints},
    TrialTable{"analog", AnalogRows, MissingChannels},
    TrialTable{"events", EventRows},
    TrialTable{"strides", StrideRows},
    TrialTable{"measures", MeasureRows},
    TrialTable{"normalized", NormalizedRows, MissingPoints},
    TrialTable{"summary", Summary},
};

// Each table of the list of reports that is made of one open trial has its functions above.
constexpr bool IsMadeSomewhere(const ReportInfo& info) {
  return info.Columns.empty() || info.Pools || info.ReadsAnyFile ||
         std::ranges::find(kTrialTables, info.Name, &TrialTable::Name) != kTrialTables.end();
}
static_assert(std::ranges::all_of(kReports, IsMadeSomewhere));

}  // namespace

const TrialTable& FindTrialTable(std::string_view name) {
  return *std::ranges::find(kTrialTables, name, &TrialTable::Name);
}

void WriteTrialRows(const TrialTable& trialTable, const modVantrel::FileState& state,
                    std::string_view file, const TableOptions& options, TableOutput& table,
                    Complaints& said) {
  if (trialTable.Missing != nullptr) said = trialTable.Missing(state, options);
  std::ranges::move(trialTable.Rows(state, file, options, table), std::back_inserter(said));
}

}  // namespace reports
