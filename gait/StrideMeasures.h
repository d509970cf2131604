// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/GaitEvents.h"

namespace modVantrel {

// The axis along which a stride goes on; none where there are no toe markers to tell.
enum class WalkAxis : std::int32_t { None = 0, X = 1, Y = 2 };

// The axis of a stride that covers those two distances.
inline WalkAxis AxisOfStride(float alongX, float alongY) {
  return alongY <= alongX ? WalkAxis::X : WalkAxis::Y;
}

// The measures of one stride. All 0 before they are worked out.
struct SingleValueMeasures {
  WalkAxis ProgressionAxis = WalkAxis::None;
  GaitSide Side = GaitSide::None;
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

enum class MeasureUnit { None, Seconds, PerSecond, Percent, Length, LengthPerSecond, Hertz };

// A measure by the names that it has in its three places.
struct MeasureSpec {
  std::string_view Name;        // in tables
  std::string_view ReportName;  // in the text report; empty where that leaves it out
  std::string_view GcdName;     // in GCD files, behind the stride's side; empty likewise
  MeasureUnit Unit;
  float (*ValueOf)(const SingleValueMeasures&);
};

// All measures in the order in which they are printed.
std::span<const MeasureSpec> MeasureTable();

// "s", "1/s", "%", "Hz", the unit `lengthUnit` of the point data or that per second; empty for
// none.
std::string UnitText(MeasureUnit unit, std::string_view lengthUnit);

}  // namespace modVantrel
