// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/OpenTrial.h"

#include "c3d/LabelTables.h"
#include "c3d/OpenC3dFile.h"
#include "gait/EventExtraction.h"

namespace modVantrel {

std::string OpenTrial(const std::string& file, Labels labels, FileState& state) {
  const auto opened = OpenC3dFile(state, file, FindGaitEvents);
  if (opened != OpenResult::Success) return std::string(OpenFailureMessage(opened));
  if (labels == Labels::All) AddFurtherLabels(state);
  return {};
}

}  // namespace modVantrel
