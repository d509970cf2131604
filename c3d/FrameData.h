// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>
#include <string_view>
#include <vector>

#include "c3d/AnalogFrames.h"
#include "c3d/FileState.h"
#include "support/OneBasedTable.h"

// One label's values in every frame, read from the open file at each call. Only the bytes around
// that label are read, never the whole data section. Errors while reading are those of BinaryFile;
// error 11 where the file's storage is neither integers nor floats.
namespace modVantrel {

// One point label in one frame.
struct PointSample {
  float X = 0;  // in the data's own units, scaled
  float Y = 0;
  float Z = 0;
  float Time = 0;                      // seconds
  std::int32_t NextFramePosition = 0;  // of the same label; 0 in the last frame
  std::int32_t NextPointPosition = 0;  // of the next label; 0 for the last label
  GaitEventType EventType = GaitEventType::Other;
  GaitSide EventSide = GaitSide::None;
  float FourthWord = 0;  // as stored; what it says is below

  // Whether the point was seen in the frame: its fourth word is not negative, and neither that nor
  // a coordinate is missing.
  bool IsSeen() const {
    return FourthWord >= 0 && !std::isnan(X) && !std::isnan(Y) && !std::isnan(Z);
  }
};

// The residual of a point, in the data's own units: the low eight bits of its fourth word's whole
// part times `scaleFactor`; -1 where that word is negative or not a number.
float ResidualOf(const PointSample& sample, float scaleFactor);

// Indexed by frame, 1 to PointFrameCount, like AnalogFrames; empty where there is no such label.
using PointSamples = modAllPurpose::OneBasedTable<PointSample>;

// The index of a label, from 1; 0 where there is none. Case and the blanks around `label` do not
// count; of several equal labels the first one wins.
std::int32_t GetPointLabelIndex(const FileState& state, std::string_view label);
std::int32_t GetAnalogLabelIndex(const FileState& state, std::string_view label);
bool PointLabelExists(const FileState& state, std::string_view label);
bool AnalogLabelExists(const FileState& state, std::string_view label);

// The values of a label in every frame, event fields empty.
PointSamples GetPointDataForLabel(const FileState& state, std::string_view label);
AnalogFrames GetAnalogDataForLabel(const FileState& state, std::string_view label);

// The same with the event fields of the frames on which a stride event falls; of several events on
// one frame the last one stays. Error 9 for an event outside the frames.
PointSamples GetPointDataWithEventsForLabel(const FileState& state, std::string_view label);
AnalogFrames GetAnalogDataWithEventsForLabel(const FileState& state, std::string_view label);

// The same by index, from 1; empty where the index is outside the points or channels.
PointSamples ReadPointDataForIndex(const FileState& state, std::int32_t index);

// The same for `count` neighbouring points from `first` on, read in one pass over the frames.
std::vector<PointSamples> ReadPointDataForIndexes(const FileState& state, std::int32_t first,
                                                  std::int32_t count);
AnalogFrames ReadAnalogDataForIndex(const FileState& state, std::int32_t channel);

// One sample at a file position. For a channel, `position` moves behind its last sample.
PointSample ReadPointSampleAt(const FileState& state, std::int32_t position);
AnalogFrame ReadAnalogFrameAt(const FileState& state, std::int32_t& position);

}  // namespace modVantrel
