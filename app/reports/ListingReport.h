#pragma once

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace reports {

// The point labels with their numbers, as they are kept.
void ShowPointLabels(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

}  // namespace reports
