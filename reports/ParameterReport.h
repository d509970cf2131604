// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "c3d/ParamRecord.h"
#include "support/ReportOutput.h"

namespace reports {

// The tag of an element, "int(1,2,1,1,1,1,1)", as a column of 30 characters; a longer one is cut.
std::string ElementTag(std::string_view type, std::span<const std::int32_t> indices);

// A group's name, or a parameter's name and one line for each of its elements, the last index
// running fastest. The record must have been read with its values.
void PrintGroupAndParams(const modVantrel::ParamRecord& record,
                         modAllPurpose::ReportOutput& output);

// The names of all groups, then three empty lines.
void ShowAllGroups(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

// Every group with its parameters, in file order, then one empty line.
void ShowAllGroupsAndAllParams(const modVantrel::FileState& state,
                               modAllPurpose::ReportOutput& output);

// The first group of that name, ignoring case and blanks around it, with its parameters; rejected
// with "group not found".
modAllPurpose::ReportResult ShowMatchingGroupAndAllParams(const modVantrel::FileState& state,
                                                          std::string_view groupName,
                                                          modAllPurpose::ReportOutput& output);

// One group and one of its parameters; without the parameter, the group and "param not found".
// Rejected with "neither group nor param found" where the group is missing.
modAllPurpose::ReportResult ShowMatchingGroupAndMatchingParam(const modVantrel::FileState& state,
                                                              std::string_view groupName,
                                                              std::string_view paramName,
                                                              modAllPurpose::ReportOutput& output);

}  // namespace reports
