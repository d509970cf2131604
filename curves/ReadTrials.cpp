// SPDX-License-Identifier: GPL-3.0-or-later

#include "curves/ReadTrials.h"

#include <set>
#include <string>
#include <utility>

#include <fmt/format.h>

#include "c3d/FrameData.h"
#include "console/Complaint.h"
#include "console/NamedFiles.h"
#include "console/OpenTrial.h"
#include "console/Usage.h"

namespace curves {

using console::ComplainOf;
using pages::TrialValues;

namespace {

// Reads one file; answers with why that failed, empty where all is well.
std::string ReadTrial(const std::string& file, const Request& request,
                      std::vector<TrialValues>& trials, std::set<std::string>& found) {
  return console::MessageOf([&] {
    modVantrel::FileState state;
    std::string refusal = console::OpenTrial(file, console::Labels::All, state);
    if (!refusal.empty()) return refusal;
    TrialValues values = pages::ReadTrialValues(state, {request.Kinds, request.Labels});
    values.File = file;
    for (const std::string& label : request.Labels) {
      if (GetPointLabelIndex(state, label) != 0) found.insert(label);
    }
    trials.push_back(std::move(values));
    return refusal;
  });
}

}  // namespace

std::vector<TrialValues> ReadTrials(const Request& request, const console::Streams& streams,
                                    int& status) {
  std::vector<TrialValues> trials;
  std::set<std::string> found;
  for (const std::string& file : console::FilesToRead(request.Files, streams, status)) {
    const std::string failure = ReadTrial(file, request, trials, found);
    if (failure.empty()) continue;
    ComplainOf(file, failure, streams);
    status = console::kSomeFailed;
  }
  for (const std::string& label : request.Labels) {
    if (trials.empty() || found.contains(label)) continue;
    Complain(streams, fmt::format("no file has a point '{}'", label));
    status = console::kSomeFailed;
  }
  return trials;
}

}  // namespace curves
