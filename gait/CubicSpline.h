// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "c3d/Component.h"
#include "c3d/FrameData.h"
#include "support/OneBasedTable.h"

// The natural cubic spline through one coordinate of a label over time. Results are stored as
// 32-bit floats at every step.
namespace modCubicSpline {

using SingleTable = modAllPurpose::OneBasedTable<float>;

struct SplineCurve {
  std::int32_t Count = 0;  // knots
  SingleTable Abscissae;   // seconds, increasing
  SingleTable Ordinates;
  SingleTable SecondDerivatives;
};

// The second derivatives at the knots 1 to `n` of the natural spline (0 at both ends) through
// (x, y), by elimination of its tridiagonal system. Error 11 where two neighbouring knots coincide,
// error 9 for fewer than two knots or tables shorter than `n`.
SingleTable SplineSecondDerivatives(const SingleTable& x, const SingleTable& y, std::int32_t n);

// The spline through `component` of the first `count` samples. Error 9 where there are fewer
// samples, otherwise as SplineSecondDerivatives.
SplineCurve BuildComponentSpline(const modVantrel::PointSamples& samples, std::int32_t count,
                                 modVantrel::Component component);

// The curve's value at `t` seconds; outside the knots the end interval's cubic goes on. Error 9 for
// fewer than two knots.
float SplineValueAt(float t, const SplineCurve& curve);

}  // namespace modCubicSpline
