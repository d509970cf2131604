// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "reports/ReportList.h"
#include "reports/Table.h"
#include "reports/TableOptions.h"

namespace reports {

// What became of the rows of one file.
struct FileRows {
  Complaints Said;      // what is to be said of the file, each thing once
  bool Failed = false;  // something asked for is not there, or the file is not sound
};

// Opens `file` afresh, with all its labels, and writes its rows of a table that does not pool. The
// table's Begin and End are the caller's. Nothing of a file escapes as an error: what was written
// before one stands, its row is dropped, and the error is among what is said. Of a checkup nothing
// is said, its rows say it. May run in several threads at once, each with a table of its own.
FileRows WriteFileRows(const ReportInfo& report, const std::string& file,
                       const TableOptions& options, TableOutput& table);

}  // namespace reports
