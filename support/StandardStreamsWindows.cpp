// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/StandardStreams.h"

namespace modAllPurpose {

// A standard stream is no number there that a file could get.
void KeepPlacesOfStandardStreams() {}

}  // namespace modAllPurpose
