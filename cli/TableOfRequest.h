// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "cli/Request.h"
#include "reports/TextTable.h"
#include "support/ReportOutput.h"

namespace cli {

// The table that a request of csv or json is written to. `output` must last as long.
std::unique_ptr<reports::TextTable> MakeTable(const Request& request,
                                              modAllPurpose::ReportOutput& output);

}  // namespace cli
