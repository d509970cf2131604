// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample/SampleWalk.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

namespace sample {

namespace {

constexpr double kTwoPi = 2.0 * std::numbers::pi;

// The walk: seconds, fractions of a stride, millimetres. It goes along the X axis.
constexpr float kRate = 100.0F;
constexpr std::int16_t kLastFrame = 460;
constexpr std::int16_t kSamplesPerFrame = 10;
constexpr double kStrideTime = 1.1;
constexpr double kFirstLeftStrike = 0.5;
constexpr double kFirstRightStrike = 1.05;
constexpr double kStance = 0.6;
constexpr double kStrideLength = 1280.0;

// Rounded to 1/1024, so that the bytes do not hang on the last bit of the sine.
float Quantized(double value) { return static_cast<float>(std::round(value * 1024.0) / 1024.0); }

// An event time, on the millisecond.
float Seconds(double value) { return static_cast<float>(std::round(value * 1000.0) / 1000.0); }

double FrameTime(std::int32_t frame) { return (frame - 1) / double{kRate}; }

// Where in its cycle a foot is: whole strides since its first strike and a fraction of one.
double Phase(double time, double firstStrike) { return (time - firstStrike) / kStrideTime; }

// 0 during stance, rising smoothly to 1 through the swing.
double SwingFraction(double phase) {
  const double within = phase - std::floor(phase);
  const double swing = std::clamp((within - kStance) / (1.0 - kStance), 0.0, 1.0);
  return swing * swing * (3.0 - 2.0 * swing);
}

PointCurve FootMarker(double firstStrike, double ahead, double aside, double height) {
  return [=](std::int32_t frame) {
    const double phase = Phase(FrameTime(frame), firstStrike);
    const double swing = SwingFraction(phase);
    const double lift = 90.0 * std::sin(std::numbers::pi * swing);
    const double offset = kStrideLength * (firstStrike / kStrideTime + std::floor(phase) + swing);
    return std::array{Quantized(offset + ahead), Quantized(aside + 4.0 * std::sin(kTwoPi * phase)),
                      Quantized(height + lift)};
  };
}

PointCurve PelvisMarker(double ahead, double aside) {
  return [=](std::int32_t frame) {
    const double strides = FrameTime(frame) / kStrideTime;
    return std::array{Quantized(kStrideLength * strides + ahead),
                      Quantized(aside + 22.0 * std::sin(kTwoPi * strides)),
                      Quantized(940.0 + 18.0 * std::cos(2.0 * kTwoPi * strides))};
  };
}

// mean + first * sin(cycle + shift) + second * sin(2 * cycle + its shift)
struct Wave {
  double Mean;
  double First;
  double FirstShift;
  double Second;
  double SecondShift;

  double At(double phase) const {
    return Mean + First * std::sin(kTwoPi * phase + FirstShift) +
           Second * std::sin(2.0 * kTwoPi * phase + SecondShift);
  }
};

struct ModelOutput {
  const char* Name;  // without the side letter
  Wave X;
  Wave Y;
  Wave Z;
};

// Angles in degrees, moments in Nmm/kg, powers in W/kg (in Z).
constexpr std::array kModelOutputs = {
    ModelOutput{"PelvisAngles", {11, 1.2, 0.4, 0.8, 1.0}, {0, 4.1, 0.2, 0, 0}, {0, 5.0, 1.5, 0, 0}},
    ModelOutput{"HipAngles", {14, 21, 1.5, 4, 0.3}, {1, 6, 0.4, 1, 0}, {3, 4, 2.0, 2, 1.0}},
    ModelOutput{"KneeAngles", {24, 18, 3.14, 14, 5.59}, {2, 3, 1.0, 1, 0}, {-4, 6, 0.5, 2, 2.0}},
    ModelOutput{"AnkleAngles", {2, 6, 5.97, 9, 2.57}, {1, 2, 0.1, 0, 0}, {-9, 5, 2.2, 1, 0.7}},
    ModelOutput{"FootProgressAngles", {-70, 9, 5.6, 6, 2}, {0, 1, 0.3, 0, 0}, {-8, 2, 1.1, 1, 2.4}},
    ModelOutput{"HipMoment", {80, 620, 1.1, 240, 0.2}, {410, 300, 5.6, 90, 1}, {20, 70, 0.4, 0, 0}},
    ModelOutput{"KneeMoment", {110, 260, 0.9, 310, 2.2}, {160, 120, 5.9, 60, 1}, {5, 40, 1, 0, 0}},
    ModelOutput{"AnkleMoment", {450, 600, 5.34, 250, 1.82}, {40, 60, 5, 0, 0}, {30, 50, 4.5, 9, 0}},
    ModelOutput{"HipPower", {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0.2, 0.6, 0.3, 0.5, 1.7}},
    ModelOutput{"KneePower", {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {-0.3, 0.4, 2.0, 0.7, 0.9}},
    ModelOutput{"AnklePower", {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0.4, 1.1, 4.4, 0.9, 2.8}}};

// How the curves of a foot differ from the waves above: it moves a part of them, a little later,
// and not twice the same.
struct Manner {
  double Part;
  double Delay;  // in strides
  double SwayShift;
};

constexpr Manner kLeftManner{1.0, 0.0, 0.4};
constexpr Manner kRightManner{0.82, 0.03, 2.5};

PointCurve ModelCurve(const ModelOutput& output, double firstStrike, const Manner& manner) {
  return [=](std::int32_t frame) {
    constexpr double kSwaysAStride = 0.37;
    const double phase = Phase(FrameTime(frame), firstStrike);
    const double sway = std::sin(kTwoPi * kSwaysAStride * phase + manner.SwayShift);
    const double part = manner.Part + 0.09 * sway;
    const double at = phase - manner.Delay - 0.012 * sway;
    return std::array{Quantized(part * output.X.At(at)), Quantized(part * output.Y.At(at)),
                      Quantized(part * output.Z.At(at))};
  };
}

double SampleTime(std::int32_t sample) {
  return (sample - 1) / (double{kRate} * double{kSamplesPerFrame});
}

// A force plate that one foot meets once: two humps during that stance, silence around it.
AnalogCurve PlateForce(double strike, double peak) {
  return [=](std::int32_t sample) {
    const double part = (SampleTime(sample) - strike) / (kStance * kStrideTime);
    if (part < 0.0 || part > 1.0) return 0.0F;
    const double humps =
        std::sin(std::numbers::pi * part) + 0.35 * std::sin(3.0 * std::numbers::pi * part);
    return Quantized(peak * humps);
  };
}

// A muscle signal: a fast wave that swells once a stride.
AnalogCurve MuscleSignal(double firstStrike, double shift) {
  return [=](std::int32_t sample) {
    const double time = SampleTime(sample);
    const double envelope = 0.5 + 0.5 * std::sin(kTwoPi * Phase(time, firstStrike) + shift);
    return Quantized(0.4 * envelope * std::sin(kTwoPi * 83.0 * time));
  };
}

void AddFoot(TrialBuilder& walk, const std::string& side, double firstStrike, double aside) {
  walk.AddPoint(side + "TOE", FootMarker(firstStrike, 190, aside, 42));
  walk.AddPoint(side + "HEE", FootMarker(firstStrike, 0, 0.9 * aside, 55));
  walk.AddPoint(side + "ANK", FootMarker(firstStrike, 60, 1.2 * aside, 95));
  walk.AddPoint(side + "ASI", PelvisMarker(90, 1.4 * aside));
}

void AddModel(TrialBuilder& walk, const std::string& side, double firstStrike,
              const Manner& manner) {
  for (const ModelOutput& output : kModelOutputs) {
    walk.AddPoint(side + output.Name, ModelCurve(output, firstStrike, manner));
  }
}

// The labels of both sides whose names end in `ending`.
std::vector<std::string> ModelLabels(std::string_view ending) {
  std::vector<std::string> labels;
  for (const char* side : {"L", "R"}) {
    for (const ModelOutput& output : kModelOutputs) {
      if (std::string_view(output.Name).ends_with(ending))
        labels.push_back(side + std::string(output.Name));
    }
  }
  return labels;
}

// What the model's outputs are, and the units of everything.
void AddUnits(TrialBuilder& walk) {
  walk.SetParam("POINT", TextParam("UNITS", "mm"));
  walk.SetParam("POINT", TextListParam("ANGLES", ModelLabels("Angles")));
  walk.SetParam("POINT", TextParam("ANGLE_UNITS", "deg"));
  walk.SetParam("POINT", TextListParam("MOMENTS", ModelLabels("Moment")));
  walk.SetParam("POINT", TextParam("MOMENT_UNITS", "Nmm/kg"));
  walk.SetParam("POINT", TextListParam("POWERS", ModelLabels("Power")));
  walk.SetParam("POINT", TextParam("POWER_UNITS", "W/kg"));
  walk.SetParam("ANALOG", TextListParam("UNITS", {"N", "N", "N", "mV", "mV"}));
}

void AddEvents(TrialBuilder& walk, const std::string& context, double firstStrike) {
  for (int stride = 0; stride <= 3; ++stride) {
    const double strike = firstStrike + stride * kStrideTime;
    walk.AddEvent(context, "Foot Strike", Seconds(strike));
    const double off = strike + kStance * kStrideTime;
    if (off < FrameTime(kLastFrame)) walk.AddEvent(context, "Foot Off", Seconds(off));
  }
}

void AddSubject(TrialBuilder& walk) {
  walk.SetParam("SUBJECTS", IntegerParam("USED", 1));
  walk.SetParam("SUBJECTS", TextListParam("NAMES", {"Sample"}));
  walk.SetParam("SUBJECTS", IntegerParam("USES_PREFIXES", 0));
  walk.SetParam("SUBJECTS", TextListParam("LABEL_PREFIXES", {"Sample:"}));
  walk.SetParam("SUBJECTS", TextParam("GENDER", "Female"));
  walk.SetParam("SUBJECTS", TextParam("DOB", "2014-03-02"));
  walk.SetParam("TRIAL", TextParam("DATE", "2026-05-11"));
  walk.SetParam("TRIAL", SingleParam("CAMERA_RATE", kRate));
}

}  // namespace

TrialBuilder SampleWalk() {
  TrialBuilder walk;
  walk.StoredAs(Storage::Single).Frames(1, kLastFrame).Rate(kRate);
  AddFoot(walk, "L", kFirstLeftStrike, 80);
  AddFoot(walk, "R", kFirstRightStrike, -80);
  AddModel(walk, "L", kFirstLeftStrike, kLeftManner);
  AddModel(walk, "R", kFirstRightStrike, kRightManner);

  walk.SamplesPerFrame(kSamplesPerFrame);
  walk.AddAnalog("Fx1", "Plate 1 force across", PlateForce(kFirstLeftStrike, 45));
  walk.AddAnalog("Fy1", "Plate 1 force along", PlateForce(kFirstLeftStrike, 110));
  walk.AddAnalog("Fz1", "Plate 1 force down", PlateForce(kFirstLeftStrike, 690));
  walk.AddAnalog("L.Tib.Ant", "Left tibialis anterior", MuscleSignal(kFirstLeftStrike, 2.1));
  walk.AddAnalog("R.Tib.Ant", "Right tibialis anterior", MuscleSignal(kFirstRightStrike, 2.1));

  AddEvents(walk, "Left", kFirstLeftStrike);
  AddEvents(walk, "Right", kFirstRightStrike);
  walk.AddEvent("Right", "Foot Off", Seconds(kFirstRightStrike - (1 - kStance) * kStrideTime));
  walk.AddEvent("General", "Start", 0.0F);
  AddUnits(walk);
  AddSubject(walk);
  return walk;
}

}  // namespace sample
