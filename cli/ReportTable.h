// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "cli/CommandLine.h"
#include "cli/StandardOutput.h"
#include "support/ReportOutput.h"

namespace cli {

// Writes a report of the open file; returns what a refused request is answered with, else nothing.
using ReportFunction = std::string (*)(const modVantrel::FileState& state, Request& request,
                                       modAllPurpose::ReportOutput& output);

struct ReportEntry {
  std::string_view Name;
  ReportFunction Run;
  bool NeedsLabel;
  Unwritten WhenUnwritten = Unwritten::EndsReport;
};

// The report of that name; null where there is none.
const ReportEntry* FindReport(std::string_view name);

// All names in the order of the help, with `separator` between them.
std::string ReportNames(std::string_view separator);

}  // namespace cli
