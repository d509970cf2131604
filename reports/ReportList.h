// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "reports/TableColumns.h"

namespace reports {

// A report as its users know it: a name, what it is in one line, and what it asks of them.
struct ReportInfo {
  std::string_view Name;
  std::string_view Description;
  bool NeedsLabel = false;
  bool TakesEvents = false;         // can name the stride events beside its lines
  bool TakesGroup = false;          // can be limited to a group, or to one of its parameters
  bool WritesGcdFiles = false;      // takes a folder for them and what is known of the subject
  bool ReadsAnyFile = false;        // also those that cannot be opened
  bool Pools = false;               // one report over the strides of all files
  bool NeedsNormals = false;        // compares with a file of normal values
  bool KnowsFurtherLabels = false;  // finds the labels beyond the 255th as a text too
  std::span<const std::string_view> Columns = {};  // of its table; none where it has no table
};

// Every report, in the order in which help and man page list them.
inline constexpr std::array kReports = {
    ReportInfo{.Name = "header",
               .Description = "Every field of the 512-byte header and what is derived from it",
               .Columns = columns::kHeader},
    ReportInfo{.Name = "parameter-header",
               .Description = "The four bytes that open the parameter section"},
    ReportInfo{.Name = "groups", .Description = "The names of the parameter groups"},
    ReportInfo{.Name = "parameters",
               .Description = "Groups and their parameters with all values",
               .TakesGroup = true,
               .Columns = columns::kParameters},
    ReportInfo{.Name = "labels",
               .Description = "The point labels with their numbers",
               .Columns = columns::kLabels},
    ReportInfo{.Name = "point",
               .Description = "Frame number, time and coordinates of a point in every frame",
               .NeedsLabel = true,
               .TakesEvents = true,
               .Columns = columns::kPoint},
    ReportInfo{.Name = "analog",
               .Description = "Frame and sample number, time and value of an analog channel",
               .NeedsLabel = true,
               .TakesEvents = true,
               .Columns = columns::kAnalog},
    ReportInfo{.Name = "events",
               .Description = "The gait events and the valid strides made of them",
               .Columns = columns::kEvents},
    ReportInfo{.Name = "strides",
               .Description = "The times of every valid stride's five events",
               .Columns = columns::kStrides},
    ReportInfo{.Name = "measures",
               .Description = "Times, support phases, lengths and speed of every valid stride",
               .Columns = columns::kMeasures},
    ReportInfo{.Name = "normalized",
               .Description = "The curves of a point at 51 instants of every valid stride",
               .NeedsLabel = true,
               .Columns = columns::kNormalized},
    ReportInfo{
        .Name = "summary",
        .Description = "The conventional gait measures of a trial, mean and deviation by side",
        .KnowsFurtherLabels = true,
        .Columns = columns::kSummary},
    ReportInfo{.Name = "visit",
               .Description = "The same over the strides of all files",
               .Pools = true,
               .Columns = columns::kVisit},
    ReportInfo{.Name = "variability",
               .Description = "How much the curves of a label differ from stride to stride",
               .Pools = true,
               .Columns = columns::kVariability},
    ReportInfo{.Name = "norms",
               .Description = "Mean and deviation of curves and measures over trials of controls",
               .Pools = true,
               .Columns = columns::kNorms},
    ReportInfo{.Name = "scores",
               .Description = "Gait Variable Scores and Gait Profile Scores against normal values",
               .Pools = true,
               .NeedsNormals = true,
               .Columns = columns::kScores},
    ReportInfo{.Name = "check",
               .Description = "What is unusual in a trial and what it does to the numbers",
               .ReadsAnyFile = true,
               .Columns = columns::kCheck},
    ReportInfo{.Name = "gcd",
               .Description = "Writes a GCD file for every valid stride and prints their names",
               .WritesGcdFiles = true},
    ReportInfo{.Name = "tree", .Description = "Groups, parameters and labels, two blanks a level"},
};

// The report of that name; null where there is none.
const ReportInfo* FindReport(std::string_view name);

}  // namespace reports
