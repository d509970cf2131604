#pragma once

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace modVantrel {

// The single-value measures of every valid stride; a file without strides gives one empty line.
// Errors as clsGcdCalcs.
void ShowSingleValueStrikeOffMeasures(const FileState& state, modAllPurpose::ReportOutput& output);

}  // namespace modVantrel
