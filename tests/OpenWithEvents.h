// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gait/EventExtraction.h"
#include "sample/TrialBuilder.h"
#include "tests/GaitTrials.h"

namespace tests {

// The trial opened as the program opens it, with its events and strides.
inline OpenedWalk OpenWithEvents(const sample::TrialBuilder& builder) {
  return {builder.Build(), modVantrel::FindGaitEvents};
}

}  // namespace tests
