// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/MacEvents.h"

#include <algorithm>
#include <array>

#include "c3d/MacSideFiles.h"

namespace modVantrel {

bool AppendMacEvents(FileState& state) {
  struct Kind {
    modAllPurpose::OneBasedTable<std::int32_t> Frames;
    GaitSide Side = GaitSide::None;
    GaitEventType Type = GaitEventType::Other;
  };
  const MacEventLines lines = ReadMacEventLines(state);
  const std::array kinds = {
      Kind{ParseFrameList(lines.RightToeOff), GaitSide::Right, GaitEventType::FootOff},
      Kind{ParseFrameList(lines.RightHeelStrike), GaitSide::Right, GaitEventType::FootStrike},
      Kind{ParseFrameList(lines.LeftToeOff), GaitSide::Left, GaitEventType::FootOff},
      Kind{ParseFrameList(lines.LeftHeelStrike), GaitSide::Left, GaitEventType::FootStrike}};

  GaitEventState& gait = state.GaitEvents;
  for (const Kind& kind : kinds) gait.TotalCount += kind.Frames.Count();
  if (std::ranges::any_of(kinds, [](const Kind& kind) { return kind.Frames.IsEmpty(); })) {
    return false;
  }
  gait.SidedStrikeOffCount = gait.TotalCount;
  for (const Kind& kind : kinds) {
    for (const std::int32_t frame : kind.Frames) {
      gait.SidedStrikeOffEvents.Append({kind.Side, kind.Type, FrameToTime(state, frame)});
    }
  }
  return true;
}

}  // namespace modVantrel
