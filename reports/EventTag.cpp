// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/EventTag.h"

#include "c3d/GaitEvents.h"

namespace reports {

std::string_view EventTag::For(std::int32_t eventType, std::int32_t eventSide) {
  if (eventType == modVantrel::kTypeOther) {
    tag_ = kNoEventTag;
    return tag_;
  }
  if (eventSide == modVantrel::kSideLeft) tag_ = "Left  ";
  if (eventSide == modVantrel::kSideRight) tag_ = "Right ";
  if (eventType == modVantrel::kTypeFootStrike) tag_ += "Foot Strike";
  if (eventType == modVantrel::kTypeFootOff) tag_ += "Foot Off   ";
  return tag_;
}

}  // namespace reports
