// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "c3d/MotionSystem.h"

namespace modVantrel {

// Where gait events come from: the EVENT group of the C3D file, or the event file that one motion
// system writes beside it. Fixed when the program is built.
enum class EventSource { EventGroup = 0, EventFile = 1 };

#ifdef VANTREL_EVENTS_FROM_SIDE_FILE
inline constexpr EventSource kEventSource = EventSource::EventFile;
#else
inline constexpr EventSource kEventSource = EventSource::EventGroup;
#endif

static_assert(kEventSource == EventSource::EventGroup || giTypeOfMotionSystem == MotionSystem::Mac,
              "only the MAC system writes an event file");

}  // namespace modVantrel
