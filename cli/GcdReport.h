// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "c3d/FileState.h"
#include "cli/GcdNames.h"
#include "gait/GcdFiles.h"
#include "support/ReportOutput.h"

namespace cli {

// What the command line says about GCD files.
struct GcdRequest {
  modVantrel::GcdOptions Options;
  bool Overwrite = false;
};

// What became of a report as a text.
struct TextOutcome {
  std::string Refusal = {};  // why there is none; empty where it is written
  std::string Remark = {};   // what is to be said of it, though it is well; empty for nothing
};

// Writes the GCD files of one trial and prints their names. Without Overwrite all of them or none;
// with it once all are complete, and those that an error then leaves written are named. They are
// refused, before anything is written, where one of them exists and may not be replaced, or was
// written for another trial of this command, or all were, for this trial, or where the names of two
// lead to one file.
TextOutcome WriteGcdReport(const modVantrel::FileState& state, const GcdRequest& request,
                           GcdTurn& turn, modAllPurpose::ReportOutput& output);

}  // namespace cli
