// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/GaitMeasures.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <string>

#include "c3d/FrameData.h"
#include "c3d/ParameterSection.h"
#include "gait/GcdCalcs.h"
#include "gait/LengthUnit.h"
#include "gait/StrideEvents.h"
#include "support/Arithmetic.h"
#include "support/RuntimeError.h"
#include "visit/StrideSelection.h"

namespace visit {

using modAllPurposeNumbers::Divide;
using modVantrel::clsGcdCalcs;
using modVantrel::Component;
using modVantrel::FileState;
using modVantrel::GaitSide;
using modVantrel::StrideRecord;

namespace {

constexpr std::array<GaitMeasureSpec, kGaitMeasureCount> kMeasures = {{
    {"walking_speed", "m/s", &GaitMeasures::WalkingSpeed},
    {"cadence", "steps/min", &GaitMeasures::Cadence},
    {"stride_time", "s", &GaitMeasures::StrideTime},
    {"step_time", "s", &GaitMeasures::StepTime},
    {"stride_length", "m", &GaitMeasures::StrideLength},
    {"step_length", "m", &GaitMeasures::StepLength},
    {"step_width", "m", &GaitMeasures::StepWidth},
    {"foot_off", "%", &GaitMeasures::FootOff},
    {"opposite_foot_off", "%", &GaitMeasures::OppositeFootOff},
    {"opposite_foot_contact", "%", &GaitMeasures::OppositeFootContact},
    {"single_support", "%", &GaitMeasures::SingleSupport},
    {"double_support", "%", &GaitMeasures::DoubleSupport},
}};

// A place on the floor, or the way from one to another, in metres.
struct FloorVector {
  double X = 0;
  double Y = 0;

  double Length() const { return modAllPurposeNumbers::Hypotenuse(X, Y); }
};

FloorVector FromTo(const FloorVector& from, const FloorVector& to) {
  return {to.X - from.X, to.Y - from.Y};
}

double Along(const FloorVector& unit, const FloorVector& way) {
  return unit.X * way.X + unit.Y * way.Y;
}

double Across(const FloorVector& unit, const FloorVector& way) {
  return std::fabs(unit.X * way.Y - unit.Y * way.X);
}

}  // namespace

GaitMeasures TimeMeasuresOf(const StrideRecord& stride) {
  const double start = stride.StartStrikeTime;
  const double oppositeOff = stride.OppositeFootOffTime;
  const double oppositeStrike = stride.OppositeFootStrikeTime;
  const double sameOff = stride.SameFootOffTime;
  const double stop = stride.StopStrikeTime;
  const double strideTime = stop - start;
  const auto share = [strideTime](double seconds) { return Divide(seconds, strideTime) * 100.0; };

  GaitMeasures measures;
  measures.Side = stride.Side;
  constexpr double kStepsPerMinute = 120;  // of strides per second
  measures.StrideTime = strideTime;
  measures.Cadence = Divide(kStepsPerMinute, strideTime);
  measures.StepTime = stop - oppositeStrike;
  measures.FootOff = share(sameOff - start);
  measures.OppositeFootOff = share(oppositeOff - start);
  measures.OppositeFootContact = share(oppositeStrike - start);
  measures.SingleSupport = share(oppositeStrike - oppositeOff);
  measures.DoubleSupport = share((sameOff - oppositeStrike) + (oppositeOff - start));
  return measures;
}

namespace {

// The measures of the strides of one trial.
class MeasuresOfTrial {
 public:
  explicit MeasuresOfTrial(const FileState& state)
      : state_(state),
        calcs_(state),
        left_(GetPointLabelIndex(state, "LTOE")),
        right_(GetPointLabelIndex(state, "RTOE")),
        metres_(MetresPerUnit(state)) {}

  GaitMeasures Of(const StrideRecord& stride) {
    GaitMeasures measures = TimeMeasuresOf(stride);
    if (left_ != 0 && right_ != 0) TakeLengths(stride, measures);
    return measures;
  }

 private:
  // Missing where the marker is not seen.
  std::optional<FloorVector> PlaceAt(std::int32_t toe, float time) {
    if (!calcs_.SamplesOfPoint(toe)[modVantrel::FrameNearestTo(state_, time)].IsSeen())
      return std::nullopt;
    const double x = SplineValueAt(time, calcs_.SplineOfPoint(toe, Component::X));
    const double y = SplineValueAt(time, calcs_.SplineOfPoint(toe, Component::Y));
    return FloorVector{x * metres_, y * metres_};
  }

  void TakeLengths(const StrideRecord& stride, GaitMeasures& measures) {
    const bool isLeft = stride.Side == GaitSide::Left;
    const auto first = PlaceAt(isLeft ? left_ : right_, stride.StartStrikeTime);
    const auto opposite = PlaceAt(isLeft ? right_ : left_, stride.OppositeFootStrikeTime);
    const auto closing = PlaceAt(isLeft ? left_ : right_, stride.StopStrikeTime);
    if (!first || !opposite || !closing) return;

    constexpr double kShortestStride = 0.1;
    const FloorVector way = FromTo(*first, *closing);
    const double length = way.Length();
    const FloorVector unit{way.X / length, way.Y / length};
    const double stepLength = Along(unit, FromTo(*opposite, *closing));
    // A toe that is missing elsewhere in the trial has no place anywhere on its spline.
    if (!(length >= kShortestStride) || !std::isfinite(length) || !std::isfinite(stepLength)) {
      return;
    }
    measures.StrideLength = length;
    measures.WalkingSpeed = Divide(length, *measures.StrideTime);
    measures.StepLength = stepLength;
    measures.StepWidth = Across(unit, FromTo(*first, *opposite));
  }

  const FileState& state_;
  clsGcdCalcs calcs_;
  std::int32_t left_;  // indices of the toe markers; 0 where there is none
  std::int32_t right_;
  double metres_;
};

}  // namespace

std::span<const GaitMeasureSpec, kGaitMeasureCount> GaitMeasureTable() { return kMeasures; }

std::string MeasureTitle(std::string_view name) {
  std::string title(name);
  std::ranges::replace(title, '_', ' ');
  if (!title.empty()) title[0] = static_cast<char>(std::toupper(title[0]));
  return title;
}

double MetresPerUnit(const FileState& state) {
  std::string unit;
  modAllPurpose::IgnoringErrors([&] {
    const modVantrel::BinaryFile::Look look(state.C3dFileNumber);
    unit = FindGroupAndParam(state, "POINT", "UNITS").Param.TextValues.First().value_or("");
  });
  constexpr double kOfAnyOther = 0.001;
  return modVantrel::MetresPerUnit(unit).value_or(kOfAnyOther);
}

std::vector<GaitMeasures> MeasuresOfStrides(const FileState& state) {
  std::vector<GaitMeasures> measures;
  const auto strides = CompleteStrides(state);
  if (strides.empty()) return measures;
  MeasuresOfTrial trial(state);
  for (const std::int32_t i : strides) {
    measures.push_back(trial.Of(state.GaitEvents.ValidStrides[i]));
  }
  return measures;
}

}  // namespace visit
