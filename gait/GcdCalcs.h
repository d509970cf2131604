// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "c3d/FileState.h"
#include "c3d/FrameData.h"
#include "c3d/PointKinds.h"
#include "gait/CubicSpline.h"
#include "gait/StrideCurve.h"
#include "gait/StrideMeasures.h"

namespace modVantrel {

// The calculations over the valid strides of one open file.
//
// A label is read from the file once and its splines are kept, so all strides of a command share
// them. The object must not outlive the open that filled `state`.
class clsGcdCalcs {
 public:
  explicit clsGcdCalcs(const FileState& state) : state_(state) {}

  const FileState& State() const { return state_; }

  // Stride `strideIndex` of ValidStrides, from 1. Lengths, speed and axis stay 0 unless the file
  // has both toe markers, LTOE and RTOE. Errors: 9 for no such stride or a stride without side, 11
  // for a stride of no duration.
  SingleValueMeasures CalcSingleValueMeasures(std::int32_t strideIndex);

  // The label's curve at 51 equally spaced times from the stride's first to its closing strike;
  // empty where there is no such label. Errors 9 and 11 as the splines.
  NormalizedCurve NormalizeLabelForStride(std::string_view label, std::int32_t strideIndex);

  // The same of the point of that number, from 1; empty where there is none.
  NormalizedCurve NormalizePointForStride(std::int32_t point, std::int32_t strideIndex);

  // The same as values, X, Y and Z; none where there is no such label.
  std::vector<StrideCurve> CurvesOfLabel(std::string_view label, std::int32_t strideIndex);

  // The samples of the point of that number, from 1, and the spline through one coordinate. Both
  // stay valid as long as this object. Errors as ReadPointDataForIndex and BuildComponentSpline.
  const PointSamples& SamplesOfPoint(std::int32_t point);
  const modCubicSpline::SplineCurve& SplineOfPoint(std::int32_t point, Component component);

 private:
  // A label's samples and its splines, each made when it is first asked for: a coordinate that is
  // not used cannot fail.
  struct LabelCurves {
    PointSamples Samples;
    std::map<Component, modCubicSpline::SplineCurve> Splines;
  };

  LabelCurves& CurvesOfPoint(std::int32_t point);
  const modCubicSpline::SplineCurve& SplineOf(std::string_view label, Component component);
  void CalcLengths(const StrideRecord& stride, SingleValueMeasures& measures);

  const PointKinds& Kinds();

  const FileState& state_;
  std::map<std::int32_t, LabelCurves> curves_;  // by label index
  std::optional<PointKinds> kinds_;
};

}  // namespace modVantrel
