// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/OpenAnew.h"

#include "c3d/LabelTables.h"
#include "c3d/OpenC3dFile.h"
#include "gait/EventExtraction.h"

namespace app {

std::string OpenAnew(const std::string& path, modVantrel::FileState& state) {
  const auto opened = modVantrel::OpenC3dFile(state, path, modVantrel::FindGaitEvents);
  if (opened != modVantrel::OpenResult::Success) {
    return std::string(modVantrel::OpenFailureMessage(opened));
  }
  modVantrel::AddFurtherLabels(state);
  return {};
}

}  // namespace app
