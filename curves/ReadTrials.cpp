// SPDX-License-Identifier: GPL-3.0-or-later

#include "curves/ReadTrials.h"

#include <string>
#include <utility>

#include "c3d/FrameData.h"
#include "console/Complaint.h"
#include "console/NamedFiles.h"
#include "console/Usage.h"
#include "gait/OpenTrial.h"
#include "support/MessageOf.h"

namespace curves {

using pages::TrialValues;

namespace {

using Complaints = std::vector<std::string>;

Complaints LabelsLackedBy(const modVantrel::FileState& state, const Request& request) {
  Complaints lacked;
  for (const std::string& label : request.Labels) {
    if (GetPointLabelIndex(state, label) == 0) {
      lacked.push_back("point label not found: " + label);
    }
  }
  return lacked;
}

// Reads one file; answers with what is to be said of it.
Complaints ReadTrial(const std::string& file, const Request& request,
                     std::vector<TrialValues>& trials) {
  Complaints complaints;
  std::string failure = modAllPurpose::MessageOf([&] {
    modVantrel::FileState state;
    std::string refusal = OpenTrial(file, modVantrel::Labels::All, state);
    if (!refusal.empty()) return refusal;
    complaints = LabelsLackedBy(state, request);
    TrialValues values = pages::ReadTrialValues(state, {request.Kinds, request.Labels});
    values.File = file;
    trials.push_back(std::move(values));
    return refusal;
  });
  if (!failure.empty()) complaints.push_back(std::move(failure));
  return complaints;
}

}  // namespace

std::vector<TrialValues> ReadTrials(const Request& request, const console::Streams& streams,
                                    int& status) {
  std::vector<TrialValues> trials;
  for (const std::string& file :
       console::FilesToRead(request.Files, console::Folders::Refused, streams, status)) {
    for (const std::string& complaint : ReadTrial(file, request, trials)) {
      console::ComplainOf(file, complaint, streams);
      status = console::kSomeFailed;
    }
  }
  return trials;
}

}  // namespace curves
