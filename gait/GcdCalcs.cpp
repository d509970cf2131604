// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/GcdCalcs.h"

#include <cmath>
#include <string>
#include <utility>

#include "c3d/FrameData.h"
#include "support/Arithmetic.h"
#include "support/RuntimeError.h"

namespace modVantrel {

using modAllPurposeNumbers::Divide;
using modAllPurposeNumbers::ToSingle;
using modCubicSpline::BuildComponentSpline;
using modCubicSpline::SplineCurve;
using modCubicSpline::SplineValueAt;

namespace {

// Lengths are enlarged by half a percent, a calibration of this program.
constexpr double kLengthCalibration = 1.0049999952316284;

float Percentage(double seconds, float strideTime) {
  return ToSingle(Divide(seconds, strideTime) * 100.0);
}

float Distance(float first, float second) { return ToSingle(std::fabs(double{first} - second)); }

float CalibratedLength(float x, float y) {
  return ToSingle(std::sqrt(double{x} * x + double{y} * y) * kLengthCalibration);
}

void CalcTiming(const StrideRecord& stride, SingleValueMeasures& measures) {
  const double start = stride.StartStrikeTime;
  const double oppositeOff = stride.OppositeFootOffTime;
  const double oppositeStrike = stride.OppositeFootStrikeTime;
  const double sameOff = stride.SameFootOffTime;
  const double stop = stride.StopStrikeTime;

  const float strideTime = ToSingle(stop - start);
  measures.StrideTime = strideTime;
  measures.Cadence = ToSingle(Divide(1.0, strideTime));
  measures.StepTimePct = Percentage(stop - oppositeStrike, strideTime);
  measures.OppositeFootOffPct = Percentage(oppositeOff - start, strideTime);
  measures.OppositeFootStrikePct = Percentage(oppositeStrike - start, strideTime);
  measures.SameFootOffPct = Percentage(sameOff - start, strideTime);
  measures.SingleSupportPct = Percentage(oppositeStrike - oppositeOff, strideTime);
  measures.DoubleSupportPct =
      Percentage((sameOff - oppositeStrike) + (oppositeOff - start), strideTime);
}

}  // namespace

SingleValueMeasures clsGcdCalcs::CalcSingleValueMeasures(std::int32_t strideIndex) {
  const StrideRecord& stride = state_.GaitEvents.ValidStrides[strideIndex];
  SingleValueMeasures measures;
  measures.Side = stride.Side;
  measures.Number = stride.Number;
  CalcTiming(stride, measures);
  if (PointLabelExists(state_, "LTOE") && PointLabelExists(state_, "RTOE")) {
    CalcLengths(stride, measures);
  }
  measures.VideoRate = state_.Header.PointFrameRate;
  return measures;
}

void clsGcdCalcs::CalcLengths(const StrideRecord& stride, SingleValueMeasures& measures) {
  if (stride.Side != GaitSide::Left && stride.Side != GaitSide::Right) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::SubscriptOutOfRange);
  }
  const std::string_view same = stride.Side == GaitSide::Left ? "LTOE" : "RTOE";
  const std::string_view opposite = stride.Side == GaitSide::Left ? "RTOE" : "LTOE";
  const SplineCurve& sameY = SplineOf(same, Component::Y);
  const SplineCurve& oppositeY = SplineOf(opposite, Component::Y);
  const SplineCurve& sameX = SplineOf(same, Component::X);
  const SplineCurve& oppositeX = SplineOf(opposite, Component::X);

  const float startY = SplineValueAt(stride.StartStrikeTime, sameY);
  const float startX = SplineValueAt(stride.StartStrikeTime, sameX);
  const float stepY = Distance(SplineValueAt(stride.OppositeFootStrikeTime, oppositeY), startY);
  const float stepX = Distance(SplineValueAt(stride.OppositeFootStrikeTime, oppositeX), startX);
  const float strideY = Distance(SplineValueAt(stride.StopStrikeTime, sameY), startY);
  const float strideX = Distance(SplineValueAt(stride.StopStrikeTime, sameX), startX);
  measures.StrideLength = CalibratedLength(strideX, strideY);
  measures.StepLength = CalibratedLength(stepX, stepY);
  measures.ProgressionAxis = AxisOfStride(strideX, strideY);
  measures.Speed = ToSingle(Divide(measures.StrideLength, measures.StrideTime));
}

NormalizedCurve clsGcdCalcs::NormalizeLabelForStride(std::string_view label,
                                                     std::int32_t strideIndex) {
  return NormalizePointForStride(GetPointLabelIndex(state_, label), strideIndex);
}

NormalizedCurve clsGcdCalcs::NormalizePointForStride(std::int32_t point, std::int32_t strideIndex) {
  if (point < 1 || point > state_.PointLabels.Count()) return {};
  const SplineCurve& x = SplineOfPoint(point, Component::X);
  const SplineCurve& y = SplineOfPoint(point, Component::Y);
  const SplineCurve& z = SplineOfPoint(point, Component::Z);
  const StrideRecord& stride = state_.GaitEvents.ValidStrides[strideIndex];
  const double start = stride.StartStrikeTime;
  const float step = ToSingle((stride.StopStrikeTime - start) / (kNormalizedPoints - 1));
  NormalizedCurve curve(kNormalizedPoints);
  for (std::int32_t k = 1; k <= kNormalizedPoints; ++k) {
    const float t = ToSingle(double{step} * (k - 1) + start);
    curve[k] = {SplineValueAt(t, x), SplineValueAt(t, y), SplineValueAt(t, z), t};
  }
  return curve;
}

std::vector<StrideCurve> clsGcdCalcs::CurvesOfLabel(std::string_view label,
                                                    std::int32_t strideIndex) {
  const NormalizedCurve points = NormalizeLabelForStride(label, strideIndex);
  if (points.IsEmpty()) return {};
  const StrideRecord& stride = state_.GaitEvents.ValidStrides[strideIndex];
  const std::string& name = state_.PointLabels[GetPointLabelIndex(state_, label)];
  std::vector<StrideCurve> curves;
  for (const Component part : kComponents) {
    StrideCurve curve{name, part, stride.Side, stride.Number, Kinds().UnitOf(name), {}};
    for (const NormalizedPoint& point : points) curve.Values.Append(ComponentOf(point, part));
    curves.push_back(std::move(curve));
  }
  return curves;
}

const PointKinds& clsGcdCalcs::Kinds() {
  if (!kinds_) kinds_.emplace(state_);
  return *kinds_;
}

const SplineCurve& clsGcdCalcs::SplineOf(std::string_view label, Component component) {
  return SplineOfPoint(GetPointLabelIndex(state_, label), component);
}

const PointSamples& clsGcdCalcs::SamplesOfPoint(std::int32_t point) {
  return CurvesOfPoint(point).Samples;
}

const SplineCurve& clsGcdCalcs::SplineOfPoint(std::int32_t point, Component component) {
  auto& [samples, splines] = CurvesOfPoint(point);
  auto spline = splines.find(component);
  if (spline == splines.end()) {
    SplineCurve built = BuildComponentSpline(samples, state_.PointFrameCount, component);
    spline = splines.emplace(component, std::move(built)).first;
  }
  return spline->second;
}

clsGcdCalcs::LabelCurves& clsGcdCalcs::CurvesOfPoint(std::int32_t point) {
  auto curves = curves_.find(point);
  if (curves == curves_.end()) {
    LabelCurves read{ReadPointDataForIndex(state_, point), {}};
    curves = curves_.emplace(point, std::move(read)).first;
  }
  return curves->second;
}

}  // namespace modVantrel
