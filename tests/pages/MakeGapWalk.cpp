// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>
#include <exception>
#include <limits>

#include "sample/SampleWalk.h"

// Writes the sample walk with all that keeps curves from being whole, for the script that holds
// pages against tables:
//
//   make-gap-walk FILE.c3d
namespace {

// As the sample walk adds them, from 1: four markers a foot, then eleven model outputs a side.
constexpr std::size_t kLeftModel = 9;
constexpr std::size_t kRightModel = 20;
constexpr std::size_t kPoints = 30;
enum Output : std::size_t {
  kPelvisAngles = 0,
  kKneeAngles = 2,
  kAnkleAngles = 3,
  kHipMoment = 5,
  kAnkleMoment = 7,
  kHipPower = 8,
  kKneePower = 9
};

void Hide(sample::TrialBuilder& walk, std::size_t point, std::int32_t from, std::int32_t to) {
  for (std::int32_t frame = from; frame <= to; ++frame) walk.NotSeen(point, frame);
}

// Strides begin at the frames 51, 161, 271 (left) and 106, 216, 326 (right) and last 110 frames, so
// that every fifth instant falls on a frame.
sample::TrialBuilder GapWalk() {
  sample::TrialBuilder walk = sample::SampleWalk();
  Hide(walk, 1, 70, 79);                             // the left toe
  Hide(walk, kLeftModel + kKneeAngles, 89, 104);     // within a stride
  Hide(walk, kLeftModel + kHipMoment, 183, 183);     // where an instant falls on the frame
  Hide(walk, kRightModel + kAnkleAngles, 239, 239);  // beside such a frame
  Hide(walk, kRightModel + kAnkleMoment, 1, 104);    // in front of all strides
  Hide(walk, kRightModel + kKneePower, 216, 216);    // where one stride ends and another begins
  Hide(walk, kLeftModel + kHipPower, 1, 460);        // everywhere
  // One more left stride, whose closing strike lies behind the trial.
  walk.AddEvent("Left", "Foot Strike", 4.9F);
  return walk;
}

// The same with one value, in front of all strides, that is not a number.
sample::Trial GapTrial() {
  constexpr std::size_t kPointBytes = 16;
  constexpr std::size_t kAnalogBytes = 5 * 10 * 4;
  constexpr std::size_t kFrame = 20;
  sample::Trial trial = GapWalk().Build();
  const std::size_t place = (kFrame - 1) * (kPoints * kPointBytes + kAnalogBytes) +
                            (kRightModel + kPelvisAngles - 1) * kPointBytes;
  trial.SetSingle(trial.FrameDataPosition() + static_cast<std::int32_t>(place),
                  std::numeric_limits<float>::quiet_NaN());
  return trial;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  try {
    GapTrial().WriteTo(argv[1]);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make-gap-walk: %s: %s\n", argv[1], error.what());
    return 1;
  }
}
