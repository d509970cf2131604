// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "cli/Request.h"
#include "reports/Table.h"
#include "reports/TableOptions.h"
#include "support/ReportOutput.h"

namespace cli {

// Writes a report of the open file; returns what a refused request is answered with, else nothing.
using TextFunction = std::string (*)(const modVantrel::FileState& state, Request& request,
                                     modAllPurpose::ReportOutput& output);

// Names the labels asked for that the open file lacks.
using MissingFunction = reports::Complaints (*)(const modVantrel::FileState& state,
                                                const reports::TableOptions& options);

// Writes the rows of the open file's table.
using RowsFunction = reports::Complaints (*)(const modVantrel::FileState& state,
                                             std::string_view file,
                                             const reports::TableOptions& options,
                                             reports::TableOutput& table);

// What makes a report of one trial: its text, and its table where it has one.
struct TrialReport {
  std::string_view Name;
  TextFunction Text;
  RowsFunction Rows = nullptr;
  MissingFunction Missing = nullptr;  // where its table is asked for labels
};

// The report of that name, which must be one of reports::kReports that is made of one trial.
const TrialReport& FindTrialReport(std::string_view name);

}  // namespace cli
