// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace reports {

// The single-value measures of every valid stride; a file without strides gives one empty line.
// Errors as clsGcdCalcs.
void ShowSingleValueStrikeOffMeasures(const modVantrel::FileState& state,
                                      modAllPurpose::ReportOutput& output);

}  // namespace reports
