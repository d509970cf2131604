// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

// The columns of the tables, in their order. Their names are what
// scripts and spreadsheets of users hold on to.
namespace reports::columns {

using Name = std::string_view;

inline constexpr std::array<Name, 3> kHeader = {"file", "field", "value"};
inline constexpr std::array<Name, 7> kParameters = {"file",       "group", "parameter", "type",
                                                    "dimensions", "index", "value"};
inline constexpr std::array<Name, 6> kLabels = {"file",  "kind",        "index",
                                                "label", "description", "unit"};
inline constexpr std::array<Name, 5> kEvents = {"file", "number", "side", "type", "time"};
inline constexpr std::array<Name, 8> kStrides = {
    "file",     "side", "number", "start", "opposite_foot_off", "opposite_foot_strike",
    "foot_off", "stop"};
inline constexpr std::array<Name, 6> kMeasures = {"file",    "side",  "stride",
                                                  "measure", "value", "unit"};
inline constexpr std::array<Name, 9> kNormalized = {"file", "side", "stride", "label", "percent",
                                                    "time", "x",    "y",      "z"};
inline constexpr std::array<Name, 8> kPoint = {"file", "label", "frame", "time",
                                               "x",    "y",     "z",     "residual"};
inline constexpr std::array<Name, 6> kAnalog = {"file",   "label", "frame",
                                                "sample", "time",  "value"};
inline constexpr std::array<Name, 10> kSummary = {"file",    "measure",  "unit",       "left_mean",
                                                  "left_sd", "left_n",   "right_mean", "right_sd",
                                                  "right_n", "asymmetry"};
inline constexpr std::array<Name, 9> kVisit = {"measure",  "unit",    "left_mean",
                                               "left_sd",  "left_n",  "right_mean",
                                               "right_sd", "right_n", "asymmetry"};
inline constexpr std::array<Name, 6> kVariability = {"side", "label", "component",
                                                     "n",    "sd",    "unit"};
inline constexpr std::array<Name, 7> kNorms = {"label", "component", "percent", "mean",
                                               "sd",    "n",         "unit"};
inline constexpr std::array<Name, 5> kScores = {"side", "variable", "score", "n", "unit"};
inline constexpr std::array<Name, 5> kCheck = {"file", "severity", "code", "place", "message"};

}  // namespace reports::columns
