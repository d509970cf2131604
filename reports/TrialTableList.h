// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "c3d/FileState.h"
#include "reports/Table.h"
#include "reports/TableOptions.h"

namespace reports {

// Writes the rows of the open file's table.
using RowsFunction = Complaints (*)(const modVantrel::FileState& state, std::string_view file,
                                    const TableOptions& options, TableOutput& table);

// Names the labels asked for that the open file lacks.
using MissingFunction = Complaints (*)(const modVantrel::FileState& state,
                                       const TableOptions& options);

// What makes the table of one open trial.
struct TrialTable {
  std::string_view Name;  // of its report
  RowsFunction Rows;
  MissingFunction Missing = nullptr;  // where it is asked for labels
};

// The table of the report of that name, which must be one of kReports that has a table and is made
// of one open trial.
const TrialTable& FindTrialTable(std::string_view name);

// Writes the rows of the open file's table, between Begin and End. Puts into `said` the labels
// asked for that the file lacks, then what the rows say: an error of the rows does not keep
// back the former. Errors as the rows.
void WriteTrialRows(const TrialTable& trialTable, const modVantrel::FileState& state,
                    std::string_view file, const TableOptions& options, TableOutput& table,
                    Complaints& said);

}  // namespace reports
