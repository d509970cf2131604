// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "c3d/BinaryFile.h"
#include "c3d/C3dHeader.h"
#include "c3d/GaitEvents.h"
#include "c3d/MacDataFile.h"
#include "support/OneBasedTable.h"

namespace modVantrel {

// Everything that is known about the one open C3D file. An open fills it; reports only read it.
//
// UsesPrefixes and LabelPrefix last from one open to the next, so files that are opened one after
// the other in one object are not independent of each other; a fresh object is.
struct FileState {
  C3dHeader Header;

  std::string OpenC3dFileSpec;                   // path as it was given
  std::uint8_t ProcessorType = 0;                // kProcessorIntel or kProcessorDec
  std::uint8_t DataStoredAsIntegerOrSingle = 0;  // kStoredAsInteger or kStoredAsSingle
  float AnalogChannelsCount = 0;                 // not rounded: may have a fraction
  float AnalogFrameRate = 0;                     // samples per second, from the header's own rate
  std::int32_t SeekPtrForFirstC3dParam = 0;      // position of the first record
  std::int32_t SeekPtrForFirstFrameData = 0;
  std::int32_t PointFrameCount = 0;
  bool UsesPrefixes = false;
  std::string LabelPrefix;
  float TimeBetweenFrames = 0;  // seconds, like the three below
  float ElapsedTimeOfWalk = 0;
  float WalkStartTime = 0;
  float WalkEndTime = 0;

  modAllPurpose::OneBasedTable<std::string> PointLabels;
  modAllPurpose::OneBasedTable<std::string> AnalogLabels;
  modAllPurpose::OneBasedTable<std::string> AnalogDescriptions;

  GaitEventState GaitEvents;
  std::int32_t StrideEventFrameCount = 0;
  modAllPurpose::OneBasedTable<EventFrameRecord> StrideEventFrames;

  // The open file. Reading moves its position and changes nothing else of the state.
  mutable BinaryFile C3dFileNumber;

  // The side files that one motion system writes; empty for every other.
  std::string EvtFileSpec;
  std::string DataFileSpec;
  MacDataFile MacData;
};

// `time` (seconds) moved into the capture: not below 0, then not before its start, then not behind
// its end. A time that is not a number stays.
float ClampToWalk(const FileState& state, float time);

// Closes the file and forgets what was read from its side files. The other fields stay.
void CloseC3dFile(FileState& state) noexcept;

}  // namespace modVantrel
