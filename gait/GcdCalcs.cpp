#include "gait/GcdCalcs.h"

#include <cmath>

#include "c3d/FrameData.h"
#include "support/Arithmetic.h"

namespace modVantrel {

using modAllPurposeNumbers::Divide;
using modAllPurposeNumbers::ToSingle;
using modCubicSpline::BuildComponentSpline;
using modCubicSpline::Component;
using modCubicSpline::SplineValueAt;

namespace {

// Lengths are enlarged by half a percent, a calibration of this program.
constexpr double kLengthCalibration = 1.0049999952316284;

constexpr std::int32_t kProgressionX = 1;
constexpr std::int32_t kProgressionY = 2;

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
  if (stride.Side != kSideLeft && stride.Side != kSideRight) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::SubscriptOutOfRange);
  }
  const LabelSplines& left = SplinesOf("LTOE");
  const LabelSplines& right = SplinesOf("RTOE");
  const LabelSplines& same = stride.Side == kSideLeft ? left : right;
  const LabelSplines& opposite = stride.Side == kSideLeft ? right : left;

  const float sameStartY = SplineValueAt(stride.StartStrikeTime, same.Y);
  const float oppositeY = SplineValueAt(stride.OppositeFootStrikeTime, opposite.Y);
  const float sameStopY = SplineValueAt(stride.StopStrikeTime, same.Y);
  const float sameStartX = SplineValueAt(stride.StartStrikeTime, same.X);
  const float oppositeX = SplineValueAt(stride.OppositeFootStrikeTime, opposite.X);
  const float sameStopX = SplineValueAt(stride.StopStrikeTime, same.X);

  const float strideY = Distance(sameStopY, sameStartY);
  const float strideX = Distance(sameStopX, sameStartX);
  measures.StrideLength = CalibratedLength(strideX, strideY);
  measures.StepLength =
      CalibratedLength(Distance(oppositeX, sameStartX), Distance(oppositeY, sameStartY));
  measures.ProgressionAxis = strideY <= strideX ? kProgressionX : kProgressionY;
  measures.Speed = ToSingle(Divide(measures.StrideLength, measures.StrideTime));
}

NormalizedCurve clsGcdCalcs::NormalizeLabelForStride(std::string_view label,
                                                     std::int32_t strideIndex) {
  if (!PointLabelExists(state_, label)) return {};
  const LabelSplines& splines = SplinesOf(label);
  const StrideRecord& stride = state_.GaitEvents.ValidStrides[strideIndex];
  const double start = stride.StartStrikeTime;
  const float step = ToSingle((stride.StopStrikeTime - start) / (kNormalizedPoints - 1));
  NormalizedCurve curve(kNormalizedPoints);
  for (std::int32_t k = 1; k <= kNormalizedPoints; ++k) {
    const float t = ToSingle(double{step} * (k - 1) + start);
    curve[k] = {SplineValueAt(t, splines.X), SplineValueAt(t, splines.Y),
                SplineValueAt(t, splines.Z), t};
  }
  return curve;
}

const clsGcdCalcs::LabelSplines& clsGcdCalcs::SplinesOf(std::string_view label) {
  const std::int32_t index = GetPointLabelIndex(state_, label);
  const auto known = splines_.find(index);
  if (known != splines_.end()) return known->second;
  const PointSamples samples = ReadPointDataForIndex(state_, index);
  const std::int32_t count = state_.PointFrameCount;
  LabelSplines splines{BuildComponentSpline(samples, count, Component::X),
                       BuildComponentSpline(samples, count, Component::Y),
                       BuildComponentSpline(samples, count, Component::Z)};
  return splines_.emplace(index, std::move(splines)).first->second;
}

}  // namespace modVantrel
