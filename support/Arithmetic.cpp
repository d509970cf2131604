// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Arithmetic.h"

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
