// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "cli/Request.h"
#include "support/ReportOutput.h"

namespace cli {

// Writes a report of the open file; returns what a refused request is answered with, else nothing.
using ReportFunction = std::string (*)(const modVantrel::FileState& state, Request& request,
                                       modAllPurpose::ReportOutput& output);

// What writes the report of that name, which must be one of reports::kReports.
ReportFunction FunctionOf(std::string_view report);

}  // namespace cli
