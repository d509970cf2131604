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

// Writes the table of a report of the trial `file`, from Begin to End, as the tool does: the trial
// is read anew with its further labels. What the table lacks of what was asked for comes back, as
// does the sentence for a trial that cannot be opened any more. Errors as the rows.
reports::Complaints WriteTable(const ShownReport& report, const std::string& file,
                               reports::TableOutput& table);

}  // namespace app
