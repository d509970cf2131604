// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "c3d/FileState.h"
#include "cli/GcdReport.h"
#include "cli/Request.h"
#include "support/ReportOutput.h"

namespace cli {

// What a text is made by: the request, and the trial's part in the GCD files of the command.
struct TextRequest {
  const Request& Asked;
  GcdTurn& Turn;
};

// Writes a report of the open file as a text.
using TextFunction = TextOutcome (*)(const modVantrel::FileState& state, const TextRequest& request,
                                     modAllPurpose::ReportOutput& output);

// What writes the text of the report of that name, which must be one of reports::kReports that is
// made of one trial.
TextFunction FindText(std::string_view name);

}  // namespace cli
