#pragma once

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace modVantrel {

// The counts, the three event lists and the valid strides that the open found.
void ShowStrikeOffEvents(const FileState& state, modAllPurpose::ReportOutput& output);

}  // namespace modVantrel
