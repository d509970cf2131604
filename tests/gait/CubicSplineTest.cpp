// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <numbers>
#include <random>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "gait/CubicSpline.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modCubicSpline;
using modVantrel::Component;
using modVantrel::PointSamples;
using tests::ErrorNumberOf;

using tests::kDivisionByZero;
using tests::kSubscriptOutOfRange;

// Samples whose X is `curve` at `count` times from `start` on; Y is 2 X and Z is -X.
PointSamples Sampled(const std::function<double(double)>& curve, std::int32_t count, double start,
                     double step) {
  PointSamples samples(count);
  for (std::int32_t i = 1; i <= count; ++i) {
    samples[i].Time = static_cast<float>(start + step * (i - 1));
    samples[i].X = static_cast<float>(curve(samples[i].Time));
    samples[i].Y = 2 * samples[i].X;
    samples[i].Z = -samples[i].X;
  }
  return samples;
}

SplineCurve SplineOf(const PointSamples& samples, Component component = Component::X) {
  return BuildComponentSpline(samples, samples.Count(), component);
}

SplineCurve SplineThrough(const std::vector<std::pair<float, float>>& knots) {
  PointSamples samples(static_cast<std::int32_t>(knots.size()));
  for (std::int32_t i = 1; i <= samples.Count(); ++i) {
    samples[i].Time = knots[static_cast<std::size_t>(i) - 1].first;
    samples[i].X = knots[static_cast<std::size_t>(i) - 1].second;
  }
  return SplineOf(samples);
}

// Knots at uneven distances with random ordinates.
SplineCurve RandomSpline(std::int32_t count, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<float> gap(0.004F, 0.03F);
  std::uniform_real_distribution<float> ordinate(-900.0F, 900.0F);
  std::vector<std::pair<float, float>> knots;
  float time = 0.5F;
  for (std::int32_t i = 0; i < count; ++i) {
    knots.emplace_back(time, ordinate(random));
    time += gap(random);
  }
  return SplineThrough(knots);
}

// The second derivatives of the natural spline, by elimination in double precision of the system
// h[i] M[i-1] + 2 (h[i] + h[i+1]) M[i] + h[i+1] M[i+1] = 6 (slope[i+1] - slope[i]). Counted from 0.
std::vector<double> SecondDerivativesInDouble(const SplineCurve& curve) {
  const auto n = static_cast<std::size_t>(curve.Count);
  std::vector<double> x(curve.Abscissae.begin(), curve.Abscissae.end());
  std::vector<double> y(curve.Ordinates.begin(), curve.Ordinates.end());
  std::vector<double> diagonal(n, 1);
  std::vector<double> above(n, 0);
  std::vector<double> right(n, 0);
  for (std::size_t i = 1; i + 1 < n; ++i) {
    const double before = x[i] - x[i - 1];
    const double behind = x[i + 1] - x[i];
    const double factor = before / diagonal[i - 1];
    diagonal[i] = 2 * (before + behind) - factor * above[i - 1];
    above[i] = behind;
    right[i] =
        6 * ((y[i + 1] - y[i]) / behind - (y[i] - y[i - 1]) / before) - factor * right[i - 1];
  }
  std::vector<double> moments(n, 0);
  for (std::size_t i = n - 1; i-- > 1;) {
    moments[i] = (right[i] - above[i] * moments[i + 1]) / diagonal[i];
  }
  return moments;
}

double ValueInDouble(double t, const SplineCurve& curve, const std::vector<double>& moments,
                     std::int32_t low) {
  const auto at = static_cast<std::size_t>(low) - 1;
  const double h = double{curve.Abscissae[low + 1]} - curve.Abscissae[low];
  const double a = (curve.Abscissae[low + 1] - t) / h;
  const double b = (t - curve.Abscissae[low]) / h;
  return a * curve.Ordinates[low] + b * curve.Ordinates[low + 1] +
         ((a * a * a - a) * moments[at] + (b * b * b - b) * moments[at + 1]) * h * h / 6;
}

// The definition of the search: the probe walks down from the last knot but one.
std::int32_t LowKnotByWalk(float t, const SplineCurve& curve) {
  std::int32_t low = 1;
  std::int32_t high = curve.Count;
  do {
    const std::int32_t k = high - low;
    if (curve.Abscissae[k] <= t) {
      low = k;
    } else {
      high = k;
    }
  } while (high - low > 1);
  return low;
}

// The value at `t` from the knots `low` and the next one, rounded as results are stored.
float ValueInInterval(float t, const SplineCurve& curve, std::int32_t low) {
  const auto h = static_cast<float>(double{curve.Abscissae[low + 1]} - curve.Abscissae[low]);
  const double a = static_cast<float>((double{curve.Abscissae[low + 1]} - t) / h);
  const double b = static_cast<float>((double{t} - curve.Abscissae[low]) / h);
  return static_cast<float>(a * curve.Ordinates[low] + b * curve.Ordinates[low + 1] +
                            ((a * a * a - a) * curve.SecondDerivatives[low] +
                             (b * b * b - b) * curve.SecondDerivatives[low + 1]) *
                                (double{h} * h) / 6.0);
}

double LargestMagnitude(const std::vector<double>& values) {
  double largest = 0;
  for (const double value : values) largest = std::max(largest, std::fabs(value));
  return largest;
}

TEST(CubicSpline, StraightLineIsReproducedExactly) {
  // Times and ordinates are exact in binary, so no step rounds.
  const SplineCurve curve =
      SplineOf(Sampled([](double t) { return 3 - 8 * t; }, 65, 0.25, 1.0 / 64));
  for (const float y2 : curve.SecondDerivatives) EXPECT_EQ(y2, 0.0F);
  for (int i = -64; i <= 256; ++i) {
    const float t = 0.25F + static_cast<float>(i) / 256;
    EXPECT_EQ(SplineValueAt(t, curve), 3 - 8 * t) << t;
  }
}

TEST(CubicSpline, PassesThroughItsKnots) {
  const SplineCurve curve = RandomSpline(200, 3);
  for (std::int32_t i = 1; i <= curve.Count; ++i) {
    EXPECT_EQ(SplineValueAt(curve.Abscissae[i], curve), curve.Ordinates[i]) << i;
  }
}

// A sine over whole half waves has no curvature at its ends, as the natural spline has none; then
// the distance is at most 5/384 h^4 times the largest fourth derivative.
TEST(CubicSpline, SampledSineIsMetWithinItsErrorBound) {
  const double omega = 2 * std::numbers::pi;
  const auto wave = [omega](double t) { return std::sin(omega * t); };
  for (const std::int32_t intervals : {16, 32, 64}) {
    const double h = 1.0 / intervals;
    const SplineCurve curve = SplineOf(Sampled(wave, intervals + 1, 0, h));
    const double bound = 5.0 / 384.0 * std::pow(h, 4) * std::pow(omega, 4);
    double farthest = 0;
    for (int i = 0; i <= 2000; ++i) {
      const float t = static_cast<float>(i) / 2000.0F;
      farthest = std::max(farthest, std::fabs(SplineValueAt(t, curve) - wave(double{t})));
    }
    constexpr double kSingleRounding = 5e-7;
    EXPECT_LE(farthest, bound + kSingleRounding) << intervals;
    EXPECT_GE(farthest, bound / 10) << "the bound is not far away";
  }
}

TEST(CubicSpline, HasNoCurvatureAtItsEnds) {
  for (const std::int32_t count : {2, 3, 4, 50}) {
    const SplineCurve curve = RandomSpline(count, 5);
    EXPECT_EQ(curve.SecondDerivatives[1], 0.0F);
    EXPECT_EQ(curve.SecondDerivatives[count], 0.0F);
    EXPECT_EQ(curve.SecondDerivatives.Count(), count);
  }
}

TEST(CubicSpline, ThreeKnotsHaveTheCurvatureOfTheClosedForm) {
  // One unknown: 2 (h1 + h2) M = 6 (slope2 - slope1).
  const SplineCurve curve = SplineThrough({{0, 0}, {1, 4}, {3, 2}});
  EXPECT_FLOAT_EQ(curve.SecondDerivatives[2], -5.0F);
  // Half-way in the first interval: 2 + (1/8 - 1/2) * -5 / 6.
  EXPECT_FLOAT_EQ(SplineValueAt(0.5F, curve), 2.3125F);
}

TEST(CubicSpline, SlopeGoesOnAcrossEachKnot) {
  const SplineCurve curve = RandomSpline(200, 9);
  const auto width = [&](std::int32_t i) {
    return double{curve.Abscissae[i + 1]} - curve.Abscissae[i];
  };
  const auto secant = [&](std::int32_t i) {
    return (double{curve.Ordinates[i + 1]} - curve.Ordinates[i]) / width(i);
  };
  const auto& y2 = curve.SecondDerivatives;
  for (std::int32_t i = 2; i < curve.Count; ++i) {
    const double before = secant(i - 1) + width(i - 1) / 6 * (double{y2[i - 1]} + 2.0 * y2[i]);
    const double behind = secant(i) - width(i) / 6 * (2.0 * y2[i] + double{y2[i + 1]});
    const double terms = std::fabs(secant(i - 1)) + std::fabs(secant(i)) +
                         width(i) * (std::fabs(double{y2[i]}) + std::fabs(double{y2[i + 1]})) +
                         width(i - 1) * std::fabs(double{y2[i - 1]});
    ASSERT_NEAR(before, behind, 3e-7 * terms) << i;
  }
}

TEST(CubicSpline, AgreesWithASolutionInDoublePrecision) {
  for (const std::int32_t count : {2, 3, 5, 60, 1000}) {
    const SplineCurve curve = RandomSpline(count, static_cast<unsigned>(count));
    const std::vector<double> moments = SecondDerivativesInDouble(curve);
    const double scale = LargestMagnitude(moments);
    for (std::int32_t i = 1; i <= count; ++i) {
      ASSERT_NEAR(curve.SecondDerivatives[i], moments[static_cast<std::size_t>(i) - 1],
                  5e-7 * scale)
          << i << " of " << count;
    }
    const float first = curve.Abscissae[1];
    const float last = curve.Abscissae[count];
    for (int k = 0; k <= 3000; ++k) {
      const float t = first + (last - first) * static_cast<float>(k) / 3000.0F;
      const std::int32_t low = std::min(LowKnotByWalk(t, curve), count - 1);
      ASSERT_NEAR(SplineValueAt(t, curve), ValueInDouble(double{t}, curve, moments, low), 2e-3)
          << t;
    }
  }
}

TEST(CubicSpline, SearchFindsTheIntervalOfTheWalk) {
  std::mt19937 random(17);
  for (const std::int32_t count : {3, 4, 5, 17, 460}) {
    const SplineCurve curve = RandomSpline(count, static_cast<unsigned>(count) + 40);
    std::vector<float> times(curve.Abscissae.begin(), curve.Abscissae.end());
    for (const float knot : std::vector<float>(times)) {
      times.push_back(std::nextafter(knot, 0.0F));
      times.push_back(std::nextafter(knot, 1e9F));
    }
    std::uniform_real_distribution<float> around(curve.Abscissae[1] - 0.2F,
                                                 curve.Abscissae[count] + 0.2F);
    for (int i = 0; i < 2000; ++i) times.push_back(around(random));
    for (const float t : times) {
      ASSERT_EQ(SplineValueAt(t, curve), ValueInInterval(t, curve, LowKnotByWalk(t, curve)))
          << t << " in " << count;
    }
  }
}

TEST(CubicSpline, EndCubicsGoOnOutsideTheKnots) {
  const SplineCurve curve = SplineThrough({{0, 0}, {1, 4}, {3, 2}});
  // Before the knots: 4 t - 5 (t^3 - t) / 6; behind them with s = (3 - t) / 2:
  // 4 s + 2 (1 - s) - 5 (s^3 - s) 4 / 6.
  EXPECT_FLOAT_EQ(SplineValueAt(-1.0F, curve), -4.0F);
  EXPECT_FLOAT_EQ(SplineValueAt(-2.0F, curve), -8.0F + 5.0F);
  EXPECT_FLOAT_EQ(SplineValueAt(5.0F, curve), 0.0F);
  EXPECT_FLOAT_EQ(SplineValueAt(7.0F, curve), -2.0F + 20.0F);
}

TEST(CubicSpline, TwoKnotsAreALine) {
  const SplineCurve curve = SplineThrough({{1, 10}, {2, 14}});
  EXPECT_EQ(SplineValueAt(1.0F, curve), 10.0F);
  EXPECT_EQ(SplineValueAt(1.25F, curve), 11.0F);
  EXPECT_EQ(SplineValueAt(2.0F, curve), 14.0F);
  EXPECT_EQ(SplineValueAt(3.0F, curve), 18.0F);
}

TEST(CubicSpline, TakesTheComponentAskedFor) {
  const PointSamples samples = Sampled([](double t) { return t * t; }, 9, 0, 0.125);
  EXPECT_EQ(SplineOf(samples, Component::X).Ordinates[5], 0.25F);
  EXPECT_EQ(SplineOf(samples, Component::Y).Ordinates[5], 0.5F);
  EXPECT_EQ(SplineOf(samples, Component::Z).Ordinates[5], -0.25F);
  EXPECT_EQ(SplineOf(samples, Component::Z).Abscissae[5], 0.5F);
}

TEST(CubicSpline, OnlyTheFirstSamplesOfACountAreUsed) {
  const PointSamples samples = Sampled([](double t) { return t; }, 9, 0, 0.125);
  const SplineCurve curve = BuildComponentSpline(samples, 4, Component::X);
  EXPECT_EQ(curve.Count, 4);
  EXPECT_EQ(curve.Ordinates.Count(), 4);
}

TEST(CubicSpline, KnotsThatCoincideAreADivisionByZero) {
  EXPECT_EQ(ErrorNumberOf([] {
              SplineThrough({{0, 0}, {1, 1}, {1, 2}, {2, 0}});
            }),
            kDivisionByZero);
  EXPECT_EQ(ErrorNumberOf([] { SplineThrough({{1, 0}, {1, 1}, {2, 2}}); }), kDivisionByZero);
  const SplineCurve curve = SplineThrough({{1, 0}, {1, 5}});
  EXPECT_EQ(ErrorNumberOf([&] { SplineValueAt(1, curve); }), kDivisionByZero)
      << "two knots have no inner one; the evaluation meets it";
}

TEST(CubicSpline, FewerSamplesThanTheCountAreAnIndexError) {
  const PointSamples samples = Sampled([](double t) { return t; }, 9, 0, 0.125);
  EXPECT_EQ(ErrorNumberOf([&] { BuildComponentSpline(samples, 10, Component::X); }),
            kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { BuildComponentSpline({}, 2, Component::X); }),
            kSubscriptOutOfRange);
}

TEST(CubicSpline, OneKnotOrNoneIsAnIndexError) {
  EXPECT_EQ(ErrorNumberOf([] { SplineThrough({{1, 1}}); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([] { SplineThrough({}); }), kSubscriptOutOfRange);
  SplineCurve one;
  one.Count = 1;
  one.Abscissae = SingleTable(1);
  one.Ordinates = SingleTable(1);
  one.SecondDerivatives = SingleTable(1);
  EXPECT_EQ(ErrorNumberOf([&] { SplineValueAt(1, one); }), kSubscriptOutOfRange);
}

TEST(CubicSpline, MissingSampleSpreadsAsNotANumber) {
  const SplineCurve curve = SplineThrough({{0, 0}, {1, std::nanf("")}, {2, 0}, {3, 1}});
  EXPECT_TRUE(std::isnan(SplineValueAt(1.5F, curve)));
}

TEST(CubicSpline, ValueTooLargeForAFloatIsAnOverflow) {
  using tests::kOverflow;
  EXPECT_EQ(ErrorNumberOf([] { SplineThrough({{0, 0}, {1e-3F, 3e38F}, {2e-3F, 0}}); }), kOverflow);
}

}  // namespace
