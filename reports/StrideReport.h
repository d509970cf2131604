// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace reports {

// The valid strides with the times of their five events, in seconds of the trial.
void ShowStrides(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

}  // namespace reports
