// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/CubicSpline.h"

#include "support/Arithmetic.h"
#include "support/RuntimeError.h"

namespace modCubicSpline {

using modAllPurposeNumbers::Divide;
using modAllPurposeNumbers::ToSingle;
using modVantrel::Component;

namespace {

// The knot that opens the interval around `t`: the last one not behind `t`, but never the last of
// all, and the first where `t` lies before every knot.
std::int32_t LowerKnot(float t, const SplineCurve& curve) {
  std::int32_t low = 1;
  std::int32_t high = curve.Count;
  while (high - low > 1) {
    const std::int32_t middle = low + (high - low) / 2;
    if (curve.Abscissae[middle] <= t) {
      low = middle;
    } else {
      high = middle;
    }
  }
  return low;
}

}  // namespace

SingleTable SplineSecondDerivatives(const SingleTable& x, const SingleTable& y, std::int32_t n) {
  SingleTable y2(n);
  SingleTable u(n - 1);
  y2[1] = 0;
  u[1] = 0;
  for (std::int32_t i = 2; i <= n - 1; ++i) {
    const double left = double{x[i]} - x[i - 1];
    const double right = double{x[i + 1]} - x[i];
    const double both = double{x[i + 1]} - x[i - 1];
    const float sig = ToSingle(Divide(left, both));
    const float p = ToSingle(double{sig} * y2[i - 1] + 2.0);
    y2[i] = ToSingle(Divide(sig - 1.0, p));
    u[i] = ToSingle(Divide(double{y[i + 1]} - y[i], right) - Divide(double{y[i]} - y[i - 1], left));
    u[i] = ToSingle(Divide(Divide(6.0 * u[i], both) - double{sig} * u[i - 1], p));
  }
  y2[n] = 0;
  for (std::int32_t k = n - 1; k >= 1; --k) y2[k] = ToSingle(double{y2[k]} * y2[k + 1] + u[k]);
  return y2;
}

SplineCurve BuildComponentSpline(const modVantrel::PointSamples& samples, std::int32_t count,
                                 Component component) {
  SplineCurve curve;
  curve.Count = count;
  curve.Abscissae = SingleTable(count);
  curve.Ordinates = SingleTable(count);
  for (std::int32_t i = 1; i <= count; ++i) {
    curve.Abscissae[i] = samples[i].Time;
    curve.Ordinates[i] = ComponentOf(samples[i], component);
  }
  curve.SecondDerivatives = SplineSecondDerivatives(curve.Abscissae, curve.Ordinates, count);
  return curve;
}

float SplineValueAt(float t, const SplineCurve& curve) {
  const std::int32_t low = LowerKnot(t, curve);
  const std::int32_t high = low + 1;
  const float h = ToSingle(double{curve.Abscissae[high]} - curve.Abscissae[low]);
  const double a = ToSingle(Divide(double{curve.Abscissae[high]} - t, h));
  const double b = ToSingle(Divide(double{t} - curve.Abscissae[low], h));
  const double cubicPart = (a * a * a - a) * curve.SecondDerivatives[low] +
                           (b * b * b - b) * curve.SecondDerivatives[high];
  return ToSingle(a * curve.Ordinates[low] + b * curve.Ordinates[high] +
                  cubicPart * (double{h} * h) / 6.0);
}

}  // namespace modCubicSpline
