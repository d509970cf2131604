// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace reports {

// The counts, the three event lists and the valid strides that the open found.
void ShowStrikeOffEvents(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

}  // namespace reports
