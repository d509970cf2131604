// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

#include "c3d/FileState.h"
#include "reports/Table.h"
#include "support/ReportOutput.h"
#include "visit/Summary.h"

namespace reports {

// The conventional measures of an open trial, whose further labels were added, over its complete
// strides: twelve rows, also where there are no strides. Errors as MeasuresOfStrides.
void SummaryRows(const modVantrel::FileState& state, std::string_view file, TableOutput& table);

// The same as text.
void ShowSummary(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

// The values of measure `i` of GaitMeasureTable from its name on, without the end of the row.
void SummaryValues(const visit::Summary& summary, std::size_t i, TableOutput& table);

// All twelve as an aligned text.
void ShowSummaryText(const visit::Summary& summary, modAllPurpose::ReportOutput& output);

}  // namespace reports
