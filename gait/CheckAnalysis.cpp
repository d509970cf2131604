// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include <fmt/format.h>

#include "gait/CheckText.h"
#include "gait/Checks.h"
#include "gait/EventNames.h"
#include "support/Text.h"

namespace modVantrel {

namespace {

// A measure by the name that capture systems give it, and the one that it has in a summary.
struct NamedMeasure {
  std::string_view Name;
  std::string_view Measure;
  std::string_view Unit;
};

constexpr std::array kMeasures = {
    NamedMeasure{"CADENCE", "cadence", "STEPS/MIN"},
    NamedMeasure{"WALKING SPEED", "walking_speed", "M/S"},
    NamedMeasure{"STRIDE TIME", "stride_time", "S"},
    NamedMeasure{"STEP TIME", "step_time", "S"},
    NamedMeasure{"OPPOSITE FOOT OFF", "opposite_foot_off", "%"},
    NamedMeasure{"OPPOSITE FOOT CONTACT", "opposite_foot_contact", "%"},
    NamedMeasure{"FOOT OFF", "foot_off", "%"},
    NamedMeasure{"SINGLE SUPPORT", "single_support", "%"},
    NamedMeasure{"DOUBLE SUPPORT", "double_support", "%"},
    NamedMeasure{"STRIDE LENGTH", "stride_length", "M"},
    NamedMeasure{"STEP LENGTH", "step_length", "M"},
    NamedMeasure{"STEP WIDTH", "step_width", "M"},
};

// A unit that stands in place of a measure's own, and its size in that one.
struct UnitFactor {
  std::string_view Unit;
  std::string_view Own;
  double Factor;
};

constexpr std::array kUnitFactors = {
    UnitFactor{"MM", "M", 1e-3},
    UnitFactor{"CM", "M", 1e-2},
    UnitFactor{"MM/S", "M/S", 1e-3},
    UnitFactor{"CM/S", "M/S", 1e-2},
    UnitFactor{"MS", "S", 1e-3},
    UnitFactor{"STRIDES/MIN", "STEPS/MIN", 2},
    UnitFactor{"STRIDES/S", "STEPS/MIN", 120},
    UnitFactor{"STEPS/S", "STEPS/MIN", 60},
};

std::string KeyOf(const std::string& text) {
  return modAllPurpose::SearchKey(modAllPurpose::StripAtNul(text));
}

// A value of the ANALYSIS group.
struct AnalysisValue {
  std::string Name;  // as the file has it
  GaitSide Side = GaitSide::None;
  double Value = 0;
  std::string Unit;  // upper case; empty where the file gives none
  const NamedMeasure* Measure = nullptr;
};

// What a stride has for the value, in the value's unit; nothing where it is missing.
std::optional<double> ValueOf(const SummaryStride& stride, const AnalysisValue& value) {
  const NamedMeasure& measure = *value.Measure;
  const auto found = stride.Values.find(measure.Measure);
  if (stride.Side != value.Side || found == stride.Values.end()) return std::nullopt;
  const auto time = stride.Values.find("stride_time");
  if (measure.Unit == "%" && value.Unit == "S" && time != stride.Values.end()) {
    return found->second / 100 * time->second;
  }
  for (const UnitFactor& factor : kUnitFactors) {
    if (factor.Own == measure.Unit && factor.Unit == value.Unit) {
      return found->second / factor.Factor;
    }
  }
  return found->second;
}

std::vector<double> ValuesOf(const std::vector<SummaryStride>& strides,
                             const AnalysisValue& value) {
  std::vector<double> values;
  for (const SummaryStride& stride : strides) {
    if (const auto number = ValueOf(stride, value)) values.push_back(*number);
  }
  return values;
}

// Within 1 % of what the file gives; numbers there are floats, whose rounding does not count.
bool IsNear(double number, double given) {
  constexpr double kShare = 0.01;
  constexpr double kRounding = 1e-6;
  return std::fabs(number - given) <= (kShare + kRounding) * std::fabs(given);
}

std::vector<AnalysisValue> ReadValues(const CheckedTrial& trial) {
  const TextArray names = trial.Param("ANALYSIS", "NAMES").TextValues;
  const TextArray contexts = trial.Param("ANALYSIS", "CONTEXTS").TextValues;
  const TextArray units = trial.Param("ANALYSIS", "UNITS").TextValues;
  const auto numbers = trial.Param("ANALYSIS", "VALUES").SingleValues;
  std::vector<AnalysisValue> values;
  for (std::int32_t i = 1;
       names.Holds(ElementAt(i)) && contexts.Holds(ElementAt(i)) && numbers.Holds(ElementAt(i));
       ++i) {
    const std::string key = KeyOf(names.At(ElementAt(i)));
    const auto* measure = std::ranges::find(kMeasures, key, &NamedMeasure::Name);
    if (measure == kMeasures.end()) continue;
    values.push_back({Shown(names.At(ElementAt(i))),
                      SideOfContext(KeyOf(contexts.At(ElementAt(i)))), numbers.At(ElementAt(i)),
                      units.Holds(ElementAt(i)) ? KeyOf(units.At(ElementAt(i))) : std::string(),
                      measure});
  }
  return values;
}

std::string NumbersText(const std::vector<double>& numbers) {
  return Listed(TextsOf(numbers, [](double number) { return fmt::format("{:.4g}", number); }));
}

}  // namespace

void CheckAnalysis(const CheckedTrial& trial, const SummaryStrides& summary, Findings& findings) {
  if (!summary || trial.State.GaitEvents.ValidStrideCount == 0) return;
  const std::vector<AnalysisValue> values = ReadValues(trial);
  if (values.empty()) return;
  const std::vector<SummaryStride> strides = summary(trial.State);
  for (const AnalysisValue& value : values) {
    const std::vector<double> numbers = ValuesOf(strides, value);
    const auto isNear = [&value](double number) { return IsNear(number, value.Value); };
    if (numbers.empty() || std::ranges::any_of(numbers, isNear)) continue;
    const std::string_view side = SideName(value.Side);
    findings.Add("analysis-differs", fmt::format("ANALYSIS:VALUES {} {}", side, value.Name),
                 fmt::format("The file says that {} {} is {:.4g}, but its own events and markers "
                             "give {} ({}): events or markers were likely changed since it was "
                             "written.",
                             side, value.Name, value.Value, NumbersText(numbers),
                             numbers.size() == 1 ? "1 stride" : "stride by stride"));
  }
}

}  // namespace modVantrel
