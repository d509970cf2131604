// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "c3d/AnalogFrames.h"
#include "c3d/FileState.h"

// What is read from an open trial, as plain values. Points and channels are numbered from 1. Errors
// are those of the reports of the same values.
namespace python {

// X, Y, Z in every frame, one behind the other; NaN for all three where the point is not seen.
std::vector<float> ReadCoordinates(const modVantrel::FileState& state, std::int32_t point);

// The residual in every frame, -1 where the point is not seen.
std::vector<float> ReadResiduals(const modVantrel::FileState& state, std::int32_t point);

// A channel in every frame, and all of its samples, which last as long as the frames. Error 9 for a
// channel that has a label but no data.
struct ChannelSamples {
  modVantrel::AnalogFrames Frames;
  std::span<const float> Values;
};
ChannelSamples ReadSamples(const modVantrel::FileState& state, std::int32_t channel);

// The time of every frame, in seconds of the trial.
std::vector<float> FrameTimes(const modVantrel::FileState& state);

// The time of every sample of a channel: those of a frame are spread evenly up to the next frame.
// Error 62 where the file ends before its last frame.
std::vector<double> SampleTimes(const modVantrel::FileState& state);

// X, Y, Z at the 51 instants of each stride to which the point's label belongs.
std::vector<float> ReadCurves(const modVantrel::FileState& state, std::int32_t point);

// The measures of every valid stride, in the order of MeasureTable.
std::vector<float> WorkOutMeasures(const modVantrel::FileState& state);

// The unit of each of these measures; empty for none.
std::vector<std::string> MeasureUnits(const modVantrel::FileState& state);

// What a file says of its points or channels beside their labels, in their order; empty where it
// says nothing.
struct LabelNotes {
  std::vector<std::string> Descriptions;
  std::vector<std::string> Units;
};
LabelNotes ReadPointNotes(const modVantrel::FileState& state);
LabelNotes ReadChannelNotes(const modVantrel::FileState& state);

// How many samples a channel has in a frame; 0 without channels.
std::int32_t SamplesPerFrame(const modVantrel::FileState& state);

}  // namespace python
