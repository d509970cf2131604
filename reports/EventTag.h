// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "c3d/GaitEvents.h"

namespace reports {

// The tag column of a frame without an event, and of a frame's later samples.
inline constexpr std::string_view kNoEventTag = "                 ";

// The tag column of a listing with events. One object serves a whole listing.
class EventTag {
 public:
  // The tag of the next frame. An event without a side goes on from the tag of the frame before.
  // Valid until the next call.
  std::string_view For(modVantrel::GaitEventType eventType, modVantrel::GaitSide eventSide);

 private:
  std::string tag_;
};

}  // namespace reports
