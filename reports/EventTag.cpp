// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/EventTag.h"

namespace reports {

using modVantrel::GaitEventType;
using modVantrel::GaitSide;

std::string_view EventTag::For(GaitEventType eventType, GaitSide eventSide) {
  if (eventType == GaitEventType::Other) {
    tag_ = kNoEventTag;
    return tag_;
  }
  if (eventSide == GaitSide::Left) tag_ = "Left  ";
  if (eventSide == GaitSide::Right) tag_ = "Right ";
  if (eventType == GaitEventType::FootStrike) tag_ += "Foot Strike";
  if (eventType == GaitEventType::FootOff) tag_ += "Foot Off   ";
  return tag_;
}

}  // namespace reports
