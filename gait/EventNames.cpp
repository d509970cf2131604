// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/EventNames.h"

namespace modVantrel {

std::string_view SideName(GaitSide side) {
  if (side == GaitSide::Left) return "Left";
  if (side == GaitSide::Right) return "Right";
  return "None";
}

GaitSide SideOfContext(std::string_view context) {
  if (context == "LEFT") return GaitSide::Left;
  if (context == "RIGHT") return GaitSide::Right;
  return GaitSide::None;
}

std::string_view EventTypeName(GaitEventType type) {
  if (type == GaitEventType::FootStrike) return "Foot Strike";
  if (type == GaitEventType::FootOff) return "Foot Off";
  return "Other";
}

}  // namespace modVantrel
