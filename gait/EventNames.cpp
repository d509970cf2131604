// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/EventNames.h"

#include "c3d/GaitEvents.h"

namespace modVantrel {

std::string_view SideName(std::int32_t side) {
  if (side == kSideLeft) return "Left";
  if (side == kSideRight) return "Right";
  return "None";
}

std::string_view EventTypeName(std::int32_t type) {
  if (type == kTypeFootStrike) return "Foot Strike";
  if (type == kTypeFootOff) return "Foot Off";
  return "Other";
}

}  // namespace modVantrel
