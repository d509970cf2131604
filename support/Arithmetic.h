// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>

#include "support/RuntimeError.h"

// The program's arithmetic: expressions are worked out in double precision, results are stored as
// 32-bit floats, and a result that its type cannot hold is a run-time error instead of a wrong
// number.
namespace modAllPurposeNumbers {

// `value` rounded to a 32-bit float. Error 6 when a finite value does not fit; infinities and NaN,
// which can only come from the data themselves, pass.
inline float ToSingle(double value) {
  const auto single = static_cast<float>(value);
  if (std::isinf(single) && !std::isinf(value)) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::Overflow);
  }
  return single;
}

// dividend / divisor; error 11 when the divisor is 0.
double Divide(double dividend, double divisor);

// The length of (x, y), the same to the last bit on Linux and on Windows, which the hypot of their
// libraries is not: a root that one step corrects, after C. F. Borges, An improved algorithm for
// hypot(a, b), ACM Transactions on Mathematical Software 47 (2020).
double Hypotenuse(double x, double y);

// Signed 16-bit difference and sum; error 6 outside -32768..32767.
std::int16_t SubtractIntegers(std::int16_t left, std::int16_t right);
std::int16_t AddIntegers(std::int16_t left, std::int16_t right);

// `value` as a signed 32-bit number; error 6 where it does not fit.
inline std::int32_t ToLong(std::int64_t value) {
  const auto number = static_cast<std::int32_t>(value);
  if (number != value) throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::Overflow);
  return number;
}

// `value` rounded to a whole number, halves to the even neighbour; error 6 where the result is not
// a signed 32-bit number (NaN included).
std::int32_t RoundToLong(double value);

}  // namespace modAllPurposeNumbers
