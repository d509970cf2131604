// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/StrideMeasures.h"

#include <array>

namespace modVantrel {

namespace {

template <float SingleValueMeasures::*Field>
float Value(const SingleValueMeasures& measures) {
  return measures.*Field;
}

float AxisNumber(const SingleValueMeasures& measures) {
  return static_cast<float>(measures.ProgressionAxis);
}

using Measures = SingleValueMeasures;

// Readers of GCD files know "StePTime" and "StePLength" by their capital P. The video rate has no
// side there and is written by itself.
constexpr std::array kMeasures = {
    MeasureSpec{"StrideTime", "Stridetime", "StrideTime", MeasureUnit::Seconds,
                Value<&Measures::StrideTime>},
    MeasureSpec{"Cadence", "Cadence", "Cadence", MeasureUnit::PerSecond, Value<&Measures::Cadence>},
    MeasureSpec{"StepTimePct", "StepTimePct", "StePTime", MeasureUnit::Percent,
                Value<&Measures::StepTimePct>},
    MeasureSpec{"OppositeFootOffPct", "OppositeFootOffPct", "OppositeFootOff", MeasureUnit::Percent,
                Value<&Measures::OppositeFootOffPct>},
    MeasureSpec{"OppositeFootStrikePct", "OppositeFootStrikePct", "OppositeFootContact",
                MeasureUnit::Percent, Value<&Measures::OppositeFootStrikePct>},
    MeasureSpec{"SameFootOffPct", "SameFootOffPct", "FootOff", MeasureUnit::Percent,
                Value<&Measures::SameFootOffPct>},
    MeasureSpec{"SingleSupportPct", "SingleSupportPct", "SingleSupport", MeasureUnit::Percent,
                Value<&Measures::SingleSupportPct>},
    MeasureSpec{"DoubleSupportPct", "DoubleSupportPct", "DoubleSupport", MeasureUnit::Percent,
                Value<&Measures::DoubleSupportPct>},
    MeasureSpec{"StrideLength", "StrideLength", "StrideLength", MeasureUnit::Length,
                Value<&Measures::StrideLength>},
    MeasureSpec{"StepLength", "StepLength", "StePLength", MeasureUnit::Length,
                Value<&Measures::StepLength>},
    MeasureSpec{"Speed", "Speed", "Speed", MeasureUnit::LengthPerSecond, Value<&Measures::Speed>},
    MeasureSpec{"VideoRate", "VideoRate", "", MeasureUnit::Hertz, Value<&Measures::VideoRate>},
    MeasureSpec{"ProgressionAxis", "", "", MeasureUnit::None, AxisNumber},
};

}  // namespace

std::span<const MeasureSpec> MeasureTable() { return kMeasures; }

std::string UnitText(MeasureUnit unit, std::string_view lengthUnit) {
  switch (unit) {
    case MeasureUnit::None:
      return "";
    case MeasureUnit::Seconds:
      return "s";
    case MeasureUnit::PerSecond:
      return "1/s";
    case MeasureUnit::Percent:
      return "%";
    case MeasureUnit::Length:
      return std::string(lengthUnit);
    case MeasureUnit::LengthPerSecond:
      return lengthUnit.empty() ? "" : std::string(lengthUnit) + "/s";
    case MeasureUnit::Hertz:
      return "Hz";
  }
  return "";
}

}  // namespace modVantrel
