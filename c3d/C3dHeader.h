// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "c3d/C3dFormat.h"
#include "support/OneBasedTable.h"

namespace modVantrel {

// The 512 bytes that open a C3D file. Floats are as stored until the open converts them from DEC;
// ScaleFactor and PointFrameRate are rewritten by the open.
struct C3dHeader {
  std::uint8_t ParamBlockPointer = 0;  // block number of the parameter section
  std::uint8_t FileID = 0;             // kFileKey in a valid file
  std::int16_t PointLabelCount = 0;    // points per frame
  std::int16_t AnalogValuesPerFrame = 0;
  std::int16_t FirstPointFrameNumber = 0;
  std::int16_t LastPointFrameNumber = 0;
  std::int16_t MaxInterpolationGapAllowed = 0;  // frames
  float ScaleFactor = 0;
  std::int16_t FirstMarkerAndAnalogBlockPointer = 0;  // read as unsigned
  std::int16_t AnalogSamplesPerChannel = 0;           // per point frame
  float PointFrameRate = 0;                           // frames per second
  std::array<std::byte, kReserved1Size> Reserved1{};
  std::int16_t EventDataFlag = 0;
  std::int16_t TimedEventsCount = 0;
  std::array<std::byte, kReserved2Size> Reserved2{};
  modAllPurpose::OneBasedTable<float> EventTimes{kHeaderEventSlots};  // seconds
  modAllPurpose::OneBasedTable<std::uint8_t> EventDisplaySwitches{kHeaderEventSlots};
  std::array<std::byte, kReserved3Size> Reserved3{};
  modAllPurpose::OneBasedTable<std::string> EventLabels{kHeaderEventSlots};  // four characters each
  std::array<std::byte, kReserved4Size> Reserved4{};
};

// The header that `bytes` hold.
C3dHeader ParseHeader(std::span<const std::byte, kBlockSize> bytes);

// The four bytes that open the parameter section.
struct ParamBlockHeader {
  std::uint8_t ParamBlockPointer = 0;
  std::uint8_t RecordID = 0;
  std::uint8_t ParamBlockCount = 0;
  std::uint8_t ProcessorType = 0;
};

}  // namespace modVantrel
