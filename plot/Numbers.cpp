// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/Numbers.h"

#include <cmath>

namespace plot {

namespace {

constexpr double kTolerance = 1e-6;  // of a step
constexpr double kBase = 10;

}  // namespace

std::vector<double> TicksOf(double low, double high, double step) {
  constexpr double kMost = 100;
  if (!(step > 0) || !(high > low) || (high - low) / step > kMost) return {};
  // Counted by itself: far from zero, one more than a number can be that number again.
  const double first = std::ceil(low / step - kTolerance);
  const int behindIt = static_cast<int>(std::floor(high / step + kTolerance) - first);
  std::vector<double> ticks;
  for (int i = 0; i <= behindIt; ++i) ticks.push_back((first + i) * step);
  return ticks;
}

double ThinnedTick(double low, double high, double tick) {
  constexpr double kMost = 25;
  const double ticks = (high - low) / tick;
  if (!(tick > 0) || !(ticks > kMost) || !std::isfinite(ticks)) return tick;
  return StepFor(ticks, static_cast<int>(kMost)) * tick;
}

double StepFor(double span, int count) {
  if (!(span > 0) || !std::isfinite(span)) return 1;
  const double least = span / count;
  const double power = std::pow(kBase, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least * (1 - kTolerance)) return factor * power;
  }
  return kBase * power;
}

int DecimalsOf(double step) {
  constexpr int kMost = 4;
  int decimals = 0;
  double scaled = std::abs(step);
  while (decimals < kMost && std::abs(scaled - std::round(scaled)) > kTolerance * scaled) {
    scaled *= kBase;
    ++decimals;
  }
  return decimals;
}

QString NumberText(double value, int decimals) {
  QString text = QString::number(std::abs(value), 'f', decimals);
  const bool isZero = text.toDouble() == 0;
  if (value < 0 && !isZero) text.prepend(QChar(0x2212));
  return text;
}

}  // namespace plot
