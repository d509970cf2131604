// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "reports/Table.h"
#include "reports/TableOptions.h"

namespace app {

// The report that the pane shows: its name in reports::kReports and what it was asked for.
struct ShownReport {
  std::string_view Name;
  reports::TableOptions Options;
};

// Whether that report has a table, too.
bool HasTable(const ShownReport& report);

// What came of a table: why there is none, or what it lacks of what was asked for.
struct TableWriting {
  std::string Failure;  // names the trial; empty where the table is there
  reports::Complaints Complaints;
};

// Writes the table of a report of the trial `file`, from Begin to End, as the tool does: the trial
// is read anew with its further labels. Where it cannot be opened any more, or is not there
// for a checkup, nothing is written. Errors as the rows.
TableWriting WriteTable(const ShownReport& report, const std::string& file,
                        reports::TableOutput& table);

}  // namespace app
