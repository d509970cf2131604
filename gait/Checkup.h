// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/BinaryFile.h"
#include "c3d/FileState.h"
#include "c3d/GaitEvents.h"

// What is unusual in a trial, and what it does to the numbers.
namespace modVantrel {

enum class Severity { Error, Warning, Note };

// "error", "warning" or "note".
std::string_view SeverityName(Severity severity);

struct Finding {
  Severity Level = Severity::Note;
  std::string Code;     // "labels-repeated"; always the same for the same kind of finding
  std::string Place;    // group and parameter, label, event, stride or byte
  std::string Message;  // one sentence with the figures, for a clinician

  friend bool operator==(const Finding&, const Finding&) = default;
};

bool HasError(const std::vector<Finding>& findings);

// The values of one stride by the names that they have in a summary ("walking_speed" in m/s,
// "foot_off" in % of the stride); those that are missing are left out.
struct SummaryStride {
  GaitSide Side = GaitSide::None;
  std::map<std::string_view, double> Values;
};

// Works out the values of all complete strides of an open trial. May end in a RuntimeError.
using SummaryStrides = std::function<std::vector<SummaryStride>(const FileState&)>;

// All findings in `file` (UTF-8), also in one that the program refuses: by kind, then by place; one
// for each cause. Goes on behind the first fault as far as the file can be made out, and never ends
// in a RuntimeError. Reads the frames once. Without `summary` the values that the file itself gives
// are not compared.
std::vector<Finding> CheckTrial(const std::string& file, const SummaryStrides& summary = {});

}  // namespace modVantrel
