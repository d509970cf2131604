// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/OpenTrial.h"

#include <fmt/format.h>

#include "c3d/LabelTables.h"
#include "c3d/OpenC3dFile.h"
#include "console/Complaint.h"
#include "gait/EventExtraction.h"

namespace console {

std::string OpenTrial(const std::string& file, Labels labels, modVantrel::FileState& state) {
  const auto opened = modVantrel::OpenC3dFile(state, file, modVantrel::FindGaitEvents);
  if (opened != modVantrel::OpenResult::Success) {
    return std::string(modVantrel::OpenFailureMessage(opened));
  }
  if (labels == Labels::All) modVantrel::AddFurtherLabels(state);
  return {};
}

void ComplainOf(const std::string& file, std::string_view message, const Streams& streams) {
  Complain(streams, fmt::format("{}: {}", file, message));
}

}  // namespace console
