// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/TableOfRequest.h"

#include "reports/CsvTable.h"
#include "reports/JsonTable.h"

namespace cli {

std::unique_ptr<reports::TextTable> MakeTable(const Request& request,
                                              modAllPurpose::ReportOutput& output) {
  if (request.Format == OutputFormat::Json) return std::make_unique<reports::JsonTable>(output);
  return std::make_unique<reports::CsvTable>(output);
}

}  // namespace cli
