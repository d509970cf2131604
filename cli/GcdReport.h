// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <string>

#include "c3d/FileState.h"
#include "gait/GcdCommand.h"
#include "support/ReportOutput.h"

namespace cli {

// What the command line says about GCD files, and which ones this command has written.
struct GcdRequest {
  modVantrel::GcdOptions Options;
  bool Overwrite = false;
  std::set<std::string> Written;
};

// Writes the GCD files of one trial and prints their names. Refuses, before anything is written,
// where one of them exists and may not be replaced, or was written for another trial of the same
// command; returns why, or nothing.
std::string WriteGcdReport(const modVantrel::FileState& state, GcdRequest& request,
                           modAllPurpose::ReportOutput& output);

}  // namespace cli
