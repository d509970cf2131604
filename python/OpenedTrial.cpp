// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/OpenedTrial.h"

#include <utility>

#include "c3d/LabelTables.h"
#include "c3d/OpenC3dFile.h"
#include "gait/EventExtraction.h"

namespace python {

using modVantrel::OpenResult;

OpenedTrial::OpenedTrial(std::string file) : file_(std::move(file)) {
  try {
    const OpenResult result = modVantrel::OpenC3dFile(state_, file_, modVantrel::FindGaitEvents);
    if (result != OpenResult::Success) throw OpenFailure{file_, result};
    modVantrel::AddFurtherLabels(state_);
  } catch (const modAllPurpose::RuntimeError& error) {
    throw DataFailure{file_, error};
  }
}

void OpenedTrial::Close() {
  const std::lock_guard lock(mutex_);
  modVantrel::CloseC3dFile(state_);
  isClosed_ = true;
}

bool OpenedTrial::IsClosed() const {
  const std::lock_guard lock(mutex_);
  return isClosed_;
}

}  // namespace python
