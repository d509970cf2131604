// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "python/ColumnTable.h"
#include "reports/ReportList.h"
#include "reports/TableOptions.h"

namespace python {

// A table of a report over files.
struct TableRequest {
  const reports::ReportInfo* Report = nullptr;  // one that has a table
  std::vector<std::string> Files;
  reports::TableOptions Options;
  std::string NormalFile;        // for a report that needs normal values
  int Jobs = 0;                  // files at once; 0: one a processor
  bool StopsAtComplaint = true;  // and leaves the rest
};

// What is to be said of a file, or of the report where it is not of one file.
struct Complaint {
  std::optional<std::string> File;
  std::string Message;
};

struct TableResult {
  std::unique_ptr<ColumnTable> Table;
  std::vector<Complaint> Complaints;  // in the order of the files
};

// Makes the table, the files' rows in the order of the files. Calls `meanwhile` several times a
// second, in the caller's thread; what that throws ends the work soon and passes. Knows nothing of
// the interpreter and is called without its lock.
TableResult MakeTable(const TableRequest& request, const std::function<void()>& meanwhile);

}  // namespace python
