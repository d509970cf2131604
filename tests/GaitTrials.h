// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "c3d/FileState.h"
#include "sample/TrialBuilder.h"
#include "tests/TestTrials.h"

// Trials with events, and states with hand-made event lists, for the tests of what is worked out
// from them.
namespace tests {

// A trial written to a file of a folder of its own and opened, events and strides included. The
// search for them is handed over, so that this serves every build of the gait layer.
class OpenedWalk {
 public:
  OpenedWalk(const sample::Trial& trial, const modVantrel::EventSteps& findEvents,
             const std::string& fileName = "trial.c3d");

  modVantrel::OpenResult Result() const { return result_; }
  modVantrel::FileState& State() { return state_; }
  const modVantrel::GaitEventState& Gait() const { return state_.GaitEvents; }
  const TemporaryFolder& Folder() const { return folder_; }
  const std::filesystem::path& File() const { return file_; }

 private:
  TemporaryFolder folder_;
  std::filesystem::path file_;
  modVantrel::FileState state_;
  modVantrel::OpenResult result_;
};

// The times of a stride's five events, in seconds and in the order of the record.
using StrideTimes = std::array<float, 5>;

// Adds the five events of a stride of `side` ("Left" or "Right") to the trial.
void AddStrideEvents(sample::TrialBuilder& builder, const std::string& side,
                     const StrideTimes& times);

// A trial of 81 frames at 64 Hz in floats, whose times are exact, without points. Its one left
// stride lasts 50 frames, from frame 17 to frame 67, so that the 51 instants of a normalised curve
// are these frames.
sample::TrialBuilder WholeFrameTrial();
inline constexpr StrideTimes kWholeFrameStride = {16.0F / 64, 21.0F / 64, 41.0F / 64, 46.0F / 64,
                                                  66.0F / 64};

// A point that stays where it is, and one that moves along a line by `step` a frame from where it
// is at frame 0.
sample::PointCurve Standing(float x, float y, float z);
sample::PointCurve Moving(const std::array<float, 3>& start, const std::array<float, 3>& step);

// The same trial with its left stride as a walk along X, a metre long, by the markers of the toes,
// and the left knee at 30, 1 and 2 degrees throughout.
sample::TrialBuilder WalkOfOneStride();

// `prefix` and `number`, for the labels of a trial.
std::string Numbered(const std::string& prefix, int number);

// A state with `events` as its sided strikes and offs, in this order, at 1 / `rate` between frames.
modVantrel::FileState StateWithEvents(const std::vector<modVantrel::EventRecord>& events,
                                      float rate = 100.0F);

// The names of what stands in a folder, sorted.
std::vector<std::string> NamesIn(const std::filesystem::path& folder);

}  // namespace tests
