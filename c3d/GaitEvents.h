// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "support/OneBasedTable.h"

// The gait events and strides of the open file, as records. What fills them is the gait layer.
namespace modVantrel {

enum class GaitSide : std::int32_t { None = 0, Left = 1, Right = 2 };

enum class GaitEventType : std::int32_t { Other = 0, FootStrike = 1, FootOff = 2 };

struct EventRecord {
  GaitSide Side = GaitSide::None;
  GaitEventType Type = GaitEventType::Other;
  float Time = 0;  // seconds

  friend bool operator==(const EventRecord&, const EventRecord&) = default;
};

// The gait cycle of one foot, from its strike to its next strike. Times are seconds.
struct StrideRecord {
  GaitSide Side = GaitSide::None;
  std::int32_t Number = 0;  // 1, 2, 3 ... for each side, in time order
  float StartStrikeTime = 0;
  float OppositeFootOffTime = 0;
  float OppositeFootStrikeTime = 0;
  float SameFootOffTime = 0;
  float StopStrikeTime = 0;

  friend bool operator==(const StrideRecord&, const StrideRecord&) = default;
};

struct EventFrameRecord {
  std::int32_t Frame = 0;  // index of the frame, 1 = the file's first
  GaitSide Side = GaitSide::None;
  GaitEventType Type = GaitEventType::Other;

  friend bool operator==(const EventFrameRecord&, const EventFrameRecord&) = default;
};

// What an open found in the file's events.
struct GaitEventState {
  std::int32_t TotalCount = 0;  // as the file states it, whatever the lists hold
  std::int32_t SidedStrikeOffCount = 0;
  std::int32_t SidedGeneralCount = 0;
  std::int32_t NonSidedCount = 0;
  modAllPurpose::OneBasedTable<EventRecord> SidedStrikeOffEvents;
  modAllPurpose::OneBasedTable<EventRecord> SidedGeneralEvents;
  modAllPurpose::OneBasedTable<EventRecord> NonSidedEvents;
  std::int32_t ValidStrideCount = 0;
  modAllPurpose::OneBasedTable<StrideRecord> ValidStrides;
  // The events whose own time lies more than half a frame outside the trial, with that time; in the
  // lists above they stand at its first or last instant.
  modAllPurpose::OneBasedTable<EventRecord> OutsideEvents;
  std::int32_t StrideEventCount = 0;
  modAllPurpose::OneBasedTable<EventRecord> StrideEvents;

  friend bool operator==(const GaitEventState&, const GaitEventState&) = default;
};

}  // namespace modVantrel
