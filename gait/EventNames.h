// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "c3d/GaitEvents.h"

namespace modVantrel {

// "Left", "Right" or, for any other code, "None".
std::string_view SideName(GaitSide side);

// The side of an event's context in upper case: "LEFT", "RIGHT" or, for any other, none.
GaitSide SideOfContext(std::string_view context);

// "Foot Strike", "Foot Off" or, for any other code, "Other".
std::string_view EventTypeName(GaitEventType type);

}  // namespace modVantrel
