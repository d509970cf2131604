// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sample/Trial.h"

namespace bench {

// 12000 frames with the toes and every label of both sides that a GCD file knows, and the events of
// that many strides, left and right in turn.
sample::Trial WalkOfStrides(int strides);

}  // namespace bench
