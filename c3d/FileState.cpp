// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/FileState.h"

namespace modVantrel {

float ClampToWalk(const FileState& state, float time) {
  if (time < 0) time = 0;
  if (time < state.WalkStartTime) time = state.WalkStartTime;
  if (time > state.WalkEndTime) time = state.WalkEndTime;
  return time;
}

void CloseC3dFile(FileState& state) noexcept {
  state.C3dFileNumber.Close();
  state.MacData = {};
}

}  // namespace modVantrel
