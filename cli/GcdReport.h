// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "c3d/FileState.h"
#include "gait/GcdFiles.h"
#include "support/ReportOutput.h"

namespace cli {

// What the command line says about GCD files, and which ones this command has written.
struct GcdRequest {
  modVantrel::GcdOptions Options;
  bool Overwrite = false;
  // The trial of each file, both as OneSpelling.
  std::map<std::string, std::string> Written;
  // What is to be said of the last trial's files, though they are well; empty for nothing.
  std::string Remark;
};

// Writes the GCD files of one trial and prints their names. Without Overwrite all of them or none;
// with it one after the other, and an error names those that were written before it. Answers why
// they are refused, before anything is written, or nothing: one of them exists and may not be
// replaced, or was written for another trial of this command, or all were, for this trial.
std::string WriteGcdReport(const modVantrel::FileState& state, GcdRequest& request,
                           modAllPurpose::ReportOutput& output);

}  // namespace cli
