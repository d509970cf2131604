// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "c3d/FrameData.h"
#include "gait/CubicSpline.h"
#include "gait/GcdCurveTable.h"
#include "gait/SubjectRecord.h"
#include "support/OneBasedTable.h"

namespace modVantrel {

// The measures of one stride. All 0 before they are worked out.
struct SingleValueMeasures {
  std::int32_t ProgressionAxis = 0;  // 1 = X, 2 = Y, 0 = no toe markers
  std::int32_t Side = kSideNone;
  std::int32_t Number = 0;
  float StrideTime = 0;   // seconds
  float Cadence = 0;      // strides per second
  float Speed = 0;        // length units per second
  float StepTimePct = 0;  // % of the stride, like the next five
  float OppositeFootOffPct = 0;
  float OppositeFootStrikePct = 0;
  float SameFootOffPct = 0;
  float SingleSupportPct = 0;
  float DoubleSupportPct = 0;
  float StrideLength = 0;  // length units of the point data
  float StepLength = 0;    // length units of the point data
  float VideoRate = 0;     // frames per second
};

// One instant of a normalised curve.
struct NormalizedPoint {
  float X = 0;
  float Y = 0;
  float Z = 0;
  float Time = 0;  // seconds of the trial, not of the stride
};

inline constexpr std::int32_t kNormalizedPoints = 51;  // 0 %, 2 %, ... 100 % of a stride

using NormalizedCurve = modAllPurpose::OneBasedTable<NormalizedPoint>;

// What the text of a GCD file leaves out; nothing of a whole file.
struct GcdParts {
  bool AppendMode = false;  // no header, since an earlier file has it
  bool SuppressVideoRate = false;
};

// The calculations over the valid strides of one open file, and the GCD files made of them.
//
// A label is read from the file once and its splines are kept, so all strides of a command share
// them. The object must not outlive the open that filled `state`.
class clsGcdCalcs {
 public:
  explicit clsGcdCalcs(const FileState& state) : state_(state) {}

  // Stride `strideIndex` of ValidStrides, from 1. Lengths, speed and axis stay 0 unless the file
  // has both toe markers, LTOE and RTOE. Errors: 9 for no such stride or a stride without side, 11
  // for a stride of no duration.
  SingleValueMeasures CalcSingleValueMeasures(std::int32_t strideIndex);

  // The label's curve at 51 equally spaced times from the stride's first to its closing strike;
  // empty where there is no such label. Errors 9 and 11 as the splines.
  NormalizedCurve NormalizeLabelForStride(std::string_view label, std::int32_t strideIndex);

  // The text of a stride's GCD file, lines ended by CR LF: the header, the measures, the video
  // rate, and the curves that the file holds.
  // `valuePrefix` is "!Left", "!Right" or "!None", `labelLetter` the side's first letter.
  std::string GcdText(std::int32_t strideIndex, std::string_view valuePrefix,
                      std::string_view labelLetter, const SubjectRecord& subject,
                      const GcdParts& parts = {});

 private:
  // A label's samples and its splines, each made when it is first asked for: a coordinate that is
  // not used cannot fail.
  struct LabelCurves {
    PointSamples Samples;
    std::map<modCubicSpline::Component, modCubicSpline::SplineCurve> Splines;
  };

  // Stays valid as long as this object.
  const modCubicSpline::SplineCurve& SplineOf(std::string_view label,
                                              modCubicSpline::Component component);
  void CalcLengths(const StrideRecord& stride, SingleValueMeasures& measures);
  void AppendLabelCurves(std::string& text, std::int32_t strideIndex, std::string_view valuePrefix,
                         std::string_view labelLetter, std::int32_t progressionAxis,
                         const GcdCurveSpec& row);

  const FileState& state_;
  std::map<std::int32_t, LabelCurves> curves_;  // by label index
};

}  // namespace modVantrel
