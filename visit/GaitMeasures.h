// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/FileState.h"
#include "c3d/GaitEvents.h"

// The conventional measures of gait, as the clinical literature defines them: Whittle, Gait
// Analysis; Hollman et al. 2011, doi 10.1016/j.gaitpost.2011.03.024. They are worked out in double
// and stand beside the measures of the fixed reports, which count cadence in strides per second and
// enlarge lengths.
namespace visit {

// The measures of one stride. Own and opposite foot are those of the stride's side; lengths lie in
// the horizontal plane, between positions of the toe markers at the strikes. Lengths and speed are
// missing without both toe markers, where one is not seen in the frame nearest to a strike, and
// where the stride is shorter than 0.1 m, as on a treadmill: its direction then is noise.
struct GaitMeasures {
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;
  std::optional<double> WalkingSpeed;  // m/s: stride length / stride time
  std::optional<double> Cadence;       // steps/min: 120 / stride time
  std::optional<double> StrideTime;    // s: from the first to the closing strike
  // s: from the opposite to the closing strike, the step that ends with the own foot's strike.
  std::optional<double> StepTime;
  std::optional<double> StrideLength;  // m: from the own toe at the first strike to the closing one
  // m: along the stride's direction from the opposite toe at its strike to the own toe at the
  // closing strike; negative where the own foot lands behind.
  std::optional<double> StepLength;
  // m: distance of the opposite toe at its strike from the line through the own toe's two places.
  std::optional<double> StepWidth;
  std::optional<double> FootOff;  // % of the stride, like those below
  std::optional<double> OppositeFootOff;
  std::optional<double> OppositeFootContact;
  std::optional<double> SingleSupport;  // opposite foot off to opposite strike
  std::optional<double> DoubleSupport;  // both times that both feet stand
};

struct GaitMeasureSpec {
  std::string_view Name;  // in tables
  std::string_view Unit;
  std::optional<double> GaitMeasures::*Value;
};

// All twelve in the order in which they are written.
inline constexpr std::size_t kGaitMeasureCount = 12;
std::span<const GaitMeasureSpec, kGaitMeasureCount> GaitMeasureTable();

// A measure by its name as a person writes it: "Walking speed" of "walking_speed".
std::string MeasureTitle(std::string_view name);

// The measures of a stride that follow from its times alone; lengths and speed are missing. Error
// 11 for a stride of no duration.
GaitMeasures TimeMeasuresOf(const modVantrel::StrideRecord& stride);

// The metres of one unit of the file's positions, by POINT:UNITS: m, cm or mm in any case, what
// fills its field aside. Anything else counts as mm.
double MetresPerUnit(const modVantrel::FileState& state);

// The measures of the complete strides, in their order. Errors as clsGcdCalcs.
std::vector<GaitMeasures> MeasuresOfStrides(const modVantrel::FileState& state);

}  // namespace visit
