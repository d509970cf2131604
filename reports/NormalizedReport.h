// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace reports {

// One label's curve at 51 instants of every valid stride. Rejected with "point label not found" or,
// where the file has no strides, "valid PIG events not found". Errors as clsGcdCalcs.
modAllPurpose::ReportResult ShowNormalized(const modVantrel::FileState& state,
                                           std::string_view label,
                                           modAllPurpose::ReportOutput& output);

}  // namespace reports
