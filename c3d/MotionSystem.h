// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace modVantrel {

// The motion-capture system whose files the program is built for. Only the MAC system writes side
// files beside its C3D files.
enum class MotionSystem { Other, Mac };

#ifdef VANTREL_MAC_SIDE_FILES
inline constexpr MotionSystem giTypeOfMotionSystem = MotionSystem::Mac;
#else
inline constexpr MotionSystem giTypeOfMotionSystem = MotionSystem::Other;
#endif

}  // namespace modVantrel
