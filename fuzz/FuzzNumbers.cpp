// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

#include "gait/CubicSpline.h"
#include "support/NumberForms.h"
#include "support/RuntimeError.h"

namespace {

using modAllPurposeNumbers::NumberPattern;
using modCubicSpline::SplineCurve;

// Takes values off the input; zeros behind its end.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

  float Single() {
    float value = 0;
    const std::size_t count = std::min(left_, sizeof value);
    std::memcpy(&value, data_, count);
    data_ += count;
    left_ -= count;
    return value;
  }
  bool IsEmpty() const { return left_ == 0; }

 private:
  const std::uint8_t* data_;
  std::size_t left_;
};

void Require(bool holds, const std::string& what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

// What is printed parses back to within half a unit of its last decimal, and keeps its sign.
void CheckPattern(const char* form, int decimals, float value) {
  const std::string printed =
      modAllPurposeNumbers::FormatNumber(NumberPattern(form), double{value});
  if (!std::isfinite(value)) {
    Require(printed == "NaN" || printed == "Inf" || printed == "-Inf", printed);
    return;
  }
  Require(printed.starts_with('-') == (value < 0), printed + " has the sign of the value");
  const long double difference = std::fabs(std::stold(printed) - static_cast<long double>(value));
  const long double unit = std::pow(10.0L, -decimals);
  const long double parsing = std::fabs(static_cast<long double>(value)) * 1e-18L;
  Require(difference <= unit / 2 + parsing, printed + " is within its rounding");
}

void CheckForms(float value) {
  CheckPattern("00", 0, value);
  CheckPattern("00.0000", 4, value);
  CheckPattern("00.00000", 5, value);
  CheckPattern("0000.0000", 4, value);
  CheckPattern("0.00000000", 8, value);
  CheckPattern("0.0#########", 10, value);
  CheckPattern("0.0###########", 12, value);
  CheckPattern("#0.00", 2, value);
  const std::string general = modAllPurposeNumbers::GeneralForm(value);
  if (std::isfinite(value) && std::fabs(value) > 1e-37F) {
    const double parsed = std::stod(general);
    Require(std::fabs(parsed - value) <= std::fabs(double{value}) * 5e-7, general);
  }
}

// Finite samples give a finite value or a run-time error.
void CheckSpline(Input& input) {
  modVantrel::PointSamples samples;
  while (!input.IsEmpty() && samples.Count() < 64) {
    modVantrel::PointSample sample;
    sample.Time = input.Single();
    sample.X = input.Single();
    if (!std::isfinite(sample.Time) || !std::isfinite(sample.X)) return;
    samples.Append(sample);
  }
  try {
    const SplineCurve curve =
        modCubicSpline::BuildComponentSpline(samples, samples.Count(), modVantrel::Component::X);
    for (const auto& sample : samples) {
      Require(std::isfinite(modCubicSpline::SplineValueAt(sample.Time, curve)), "finite at a knot");
      Require(std::isfinite(modCubicSpline::SplineValueAt(sample.Time * 0.5F, curve)), "finite");
    }
  } catch (const modAllPurpose::RuntimeError&) {
  }
}

}  // namespace

// Number forms and splines by their properties.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input values(data, size);
  while (!values.IsEmpty()) CheckForms(values.Single());
  Input samples(data, size);
  CheckSpline(samples);
  return 0;
}
