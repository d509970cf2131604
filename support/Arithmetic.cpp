// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Arithmetic.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "support/RuntimeError.h"

namespace modAllPurposeNumbers {

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;

namespace {

std::int16_t ToInteger(std::int32_t value) {
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max()) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return static_cast<std::int16_t>(value);
}

}  // namespace

double Divide(double dividend, double divisor) {
  if (divisor == 0.0) throw RuntimeError(ErrorNumber::DivisionByZero);
  return dividend / divisor;
}

double Hypotenuse(double x, double y) {
  const double squares = x * x + y * y;
  if (!std::isnormal(squares)) return std::hypot(x, y);  // 0, or at the ends of the numbers
  const double a = std::max(std::fabs(x), std::fabs(y));
  const double b = std::min(std::fabs(x), std::fabs(y));
  const double root = std::sqrt(squares);
  // Half the excess of root^2 over a^2 + b^2, without the rounding of the squares.
  const bool isSteep = root <= 2 * b;
  const double rest = root - (isSteep ? b : a);
  const double excess = isSteep ? a * (2 * rest - a) + (rest - 2 * (a - b)) * rest
                                : 2 * rest * (a - 2 * b) + ((4 * rest - b) * b + rest * rest);
  return root - excess / (2 * root);
}

std::int16_t SubtractIntegers(std::int16_t left, std::int16_t right) {
  return ToInteger(std::int32_t{left} - std::int32_t{right});
}

std::int16_t AddIntegers(std::int16_t left, std::int16_t right) {
  return ToInteger(std::int32_t{left} + std::int32_t{right});
}

std::int32_t RoundToLong(double value) {
  // The default rounding mode is to nearest, halves to even, and nothing here changes it.
  const double rounded = std::nearbyint(value);
  const bool fits = rounded >= std::numeric_limits<std::int32_t>::min() &&
                    rounded <= std::numeric_limits<std::int32_t>::max();
  if (!fits) throw RuntimeError(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(rounded);
}

}  // namespace modAllPurposeNumbers
