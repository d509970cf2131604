// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "c3d/FileState.h"

// The tables of point and analog labels, filled once by an open.
namespace modVantrel {

// Takes UsesPrefixes and, where it is true, LabelPrefix from the SUBJECTS group. What the file does
// not say keeps the value of the previous open.
void ReadLabelPrefix(FileState& state);

// `label` without `prefix` where it begins with it, ignoring case.
std::string WithoutPrefix(std::string_view label, std::string_view prefix);

// Sizes PointLabels to the header's count and fills it from POINT:LABELS; what is missing there
// stays empty.
void FillPointLabels(FileState& state);

// Sizes AnalogLabels and AnalogDescriptions to the rounded channel count and fills them where the
// file holds both parameters. Descriptions lose the prefix like labels.
void FillAnalogLabels(FileState& state);

// The entries 1 to `count` of the text parameter `param` of a group and of its continuations,
// `param` with 2, 3 ... behind its name up to the first that is missing: entry k of table n is
// number (n - 1) * 255 + k, since a dimension ends at 255. What is missing is empty. Errors as
// FindGroupAndParam.
modAllPurpose::OneBasedTable<std::string> ReadTextTable(const FileState& state,
                                                        std::string_view group,
                                                        std::string_view param, std::int32_t count);

// Fills what the tables of labels and descriptions leave empty behind their 255th entry from
// LABELS2, LABELS3 ... and DESCRIPTIONS2 ... of POINT and ANALOG, the prefix cut like the others.
void AddFurtherLabels(FileState& state);

// Takes back what AddFurtherLabels did, as far as it came.
void DropFurtherLabels(FileState& state);

}  // namespace modVantrel
