// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "c3d/GaitEvents.h"
#include "gait/Checkup.h"
#include "pages/TrialValues.h"

// What the curves window takes from the trials of a visit. Each of these opens the file in a state
// of its own and closes it, so that they run beside everything else.
namespace app {

// A stride of one trial: its side and its number, from 1.
using StrideOfTrial = std::pair<modVantrel::GaitSide, int>;

// A trial with the strides of it that count nowhere.
struct TrialToRead {
  std::string Path;
  std::set<StrideOfTrial> LeftOut;
};

struct ReadTrial {
  std::string Failure;                       // the sentence that says why there are no values
  std::optional<pages::TrialValues> Values;  // none after a failure
  std::vector<std::string> Labels;           // of all points, as the file spells them
};

// Everything that pages show of the trial at `path`, and `label` over time unless it is empty.
ReadTrial ReadTrialForPages(const std::string& path, const std::string& label);

// `label` over time alone: nothing where the trial lacks it.
struct ReadLabel {
  std::string Failure;
  std::vector<pages::LabelOverTime> OverTime;
};
ReadLabel ReadLabelOverTime(const std::string& path, const std::string& label);

enum class TableForm { Csv, Json };

// A table of several trials as a text, and a sentence for each trial that could not be read and
// each thing that could not be worked out.
struct MadeTable {
  std::string Text;
  std::vector<std::string> Complaints;
};

// The reports that the window exports, in the order of its menu: of all labels where they are made
// of labels.
inline constexpr std::string_view kVisitTables[] = {"summary", "visit", "variability", "measures",
                                                    "normalized"};

// The table of one of these reports over trials: that of the same files by the command-line tool,
// less the strides that are left out.
MadeTable TableOfVisit(std::string_view report, TableForm form,
                       const std::vector<TrialToRead>& trials);

}  // namespace app
