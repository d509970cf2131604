// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

// Listings of the open file's data, one line a point label, frame or sample. `label` is matched
// ignoring case and the blanks around it; an unknown one is rejected with "point label not found"
// or "analog label not found". Errors as reading the frames.
namespace reports {

// The point labels with their numbers, as they are kept.
void ShowPointLabels(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

// Frame number, time and coordinates of one point in every frame.
modAllPurpose::ReportResult ShowPointData(const modVantrel::FileState& state,
                                          std::string_view label,
                                          modAllPurpose::ReportOutput& output);

// Frame number, running sample number, frame time and value of one channel's samples.
modAllPurpose::ReportResult ShowAnalogData(const modVantrel::FileState& state,
                                           std::string_view label,
                                           modAllPurpose::ReportOutput& output);

// The same with a column in front that names the stride event on each frame. Error 9 where an event
// lies outside the frames.
modAllPurpose::ReportResult ShowPointDataWithEvents(const modVantrel::FileState& state,
                                                    std::string_view label,
                                                    modAllPurpose::ReportOutput& output);
modAllPurpose::ReportResult ShowAnalogDataWithEvents(const modVantrel::FileState& state,
                                                     std::string_view label,
                                                     modAllPurpose::ReportOutput& output);

}  // namespace reports
