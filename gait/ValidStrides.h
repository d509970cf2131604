// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "c3d/FileState.h"
#include "c3d/GaitEvents.h"
#include "support/OneBasedTable.h"

namespace modVantrel {

// Sorts events 1 to `count` by Time, by exchanging any two that stand in the wrong order. The order
// that this gives to events of equal times is part of the results: it is not that of a stable sort.
void SortEventsByTime(std::int32_t count, modAllPurpose::OneBasedTable<EventRecord>& events);

// Left for right, right for left, none for anything else.
GaitSide OppositeSide(GaitSide side);

// Sorts the three event lists, then fills ValidStrides and StrideEvents from the sided strikes and
// offs. A stride is five consecutive events, each on a later frame than the one before: the foot
// strikes, the other comes off, the other strikes, the foot comes off, the foot strikes again.
void FindValidStrides(FileState& state);

// Drops stride events that stand in `events` twice (same side, type and time). For each repeat of
// record i it is the record at i + 1 that goes, until the repeat itself has moved there.
void RemoveRepeatedEvents(modAllPurpose::OneBasedTable<EventRecord>& events);

// Fills StrideEventFrames: the frame index, from 1, of each stride event. An index outside the
// frames is kept; error 6 where it is no 32-bit number.
void TagStrideEventFrames(FileState& state);

}  // namespace modVantrel
