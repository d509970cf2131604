// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "c3d/FileState.h"
#include "reports/Table.h"
#include "reports/TableOptions.h"

// The rows of the tables that are made of one open trial, in the columns of TableColumns.h. `file`
// is the trial's name as it stands in each row. A label is any of the trial's, those that were
// added from its further tables included; the rows of one that it lacks are left out. Errors as the
// text reports of the same names.
namespace reports {

// A complaint for each label of the options that the trial lacks: of points for the tables of
// points and curves, of channels for that of channels. Ask before the rows, which may end in an
// error.
Complaints MissingPoints(const modVantrel::FileState& state, const TableOptions& options);
Complaints MissingChannels(const modVantrel::FileState& state, const TableOptions& options);

// The single values of the header and what is derived from it.
Complaints HeaderRows(const modVantrel::FileState& state, std::string_view file,
                      const TableOptions& options, TableOutput& table);

// One row for each element of each parameter, the first dimension fastest; of one group or one
// parameter where the options name them.
Complaints ParameterRows(const modVantrel::FileState& state, std::string_view file,
                         const TableOptions& options, TableOutput& table);

// The points, then the channels, with descriptions and units.
Complaints LabelRows(const modVantrel::FileState& state, std::string_view file,
                     const TableOptions& options, TableOutput& table);

// Sided strikes and offs, other sided events and those without a side, each in the order kept.
Complaints EventRows(const modVantrel::FileState& state, std::string_view file,
                     const TableOptions& options, TableOutput& table);

// The times of each valid stride, in seconds of the trial.
Complaints StrideRows(const modVantrel::FileState& state, std::string_view file,
                      const TableOptions& options, TableOutput& table);

// Every measure of every valid stride, with its unit.
Complaints MeasureRows(const modVantrel::FileState& state, std::string_view file,
                       const TableOptions& options, TableOutput& table);

// Each label at 51 instants of every valid stride.
Complaints NormalizedRows(const modVantrel::FileState& state, std::string_view file,
                          const TableOptions& options, TableOutput& table);

// Each point in every frame, with its residual.
Complaints PointRows(const modVantrel::FileState& state, std::string_view file,
                     const TableOptions& options, TableOutput& table);

// Each channel in every frame, sample by sample.
Complaints AnalogRows(const modVantrel::FileState& state, std::string_view file,
                      const TableOptions& options, TableOutput& table);

}  // namespace reports
