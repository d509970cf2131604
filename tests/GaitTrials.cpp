// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/GaitTrials.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "support/Arithmetic.h"

namespace tests {

OpenedWalk::OpenedWalk(const sample::Trial& trial, const modVantrel::EventSteps& findEvents,
                       const std::string& fileName)
    : file_(folder_ / fileName) {
  trial.WriteTo(file_);
  result_ = modVantrel::OpenC3dFile(state_, file_.string(), findEvents);
}

void AddStrideEvents(sample::TrialBuilder& builder, const std::string& side,
                     const StrideTimes& times) {
  const std::string other = side == "Left" ? "Right" : "Left";
  builder.AddEvent(side, "Foot Strike", times[0]);
  builder.AddEvent(other, "Foot Off", times[1]);
  builder.AddEvent(other, "Foot Strike", times[2]);
  builder.AddEvent(side, "Foot Off", times[3]);
  builder.AddEvent(side, "Foot Strike", times[4]);
}

sample::TrialBuilder WholeFrameTrial() {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 81).Rate(64);
  AddStrideEvents(builder, "Left", kWholeFrameStride);
  return builder;
}

sample::PointCurve Standing(float x, float y, float z) {
  return [=](std::int32_t /*frame*/) { return std::array{x, y, z}; };
}

sample::PointCurve Moving(const std::array<float, 3>& start, const std::array<float, 3>& step) {
  return [=](std::int32_t frame) {
    const auto frames = static_cast<float>(frame);
    return std::array{start[0] + step[0] * frames, start[1] + step[1] * frames,
                      start[2] + step[2] * frames};
  };
}

sample::TrialBuilder WalkOfOneStride() {
  sample::TrialBuilder builder = WholeFrameTrial();
  builder.AddPoint("LTOE", Moving({}, {20, 0, 0}))
      .AddPoint("RTOE", Standing(840, 100, 0))
      .AddPoint("LKneeAngles", Standing(30, 1, 2));
  return builder;
}

std::string Numbered(const std::string& prefix, int number) {
  std::string name = prefix;
  name += std::to_string(number);
  return name;
}

modVantrel::FileState StateWithEvents(const std::vector<modVantrel::EventRecord>& events,
                                      float rate) {
  modVantrel::FileState state;
  state.Header.FirstPointFrameNumber = 1;
  state.TimeBetweenFrames = modAllPurposeNumbers::ToSingle(1.0 / rate);
  for (const auto& event : events) state.GaitEvents.SidedStrikeOffEvents.Append(event);
  state.GaitEvents.SidedStrikeOffCount = state.GaitEvents.SidedStrikeOffEvents.Count();
  state.GaitEvents.TotalCount = state.GaitEvents.SidedStrikeOffCount;
  return state;
}

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace tests
