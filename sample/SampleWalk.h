// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sample/TrialBuilder.h"

namespace sample {

// A level walk of three strides of each foot with toe markers, joint angles, moments and powers of
// plausible shape, ground reaction and muscle channels, and the events of the walk. It is made by
// formulas, so every build makes the same bytes.
TrialBuilder SampleWalk();

}  // namespace sample
