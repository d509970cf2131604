// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/TrialValues.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <set>
#include <string_view>
#include <utility>

#include <fmt/chrono.h>

#include "gait/GcdCalcs.h"
#include "pages/MissingInstants.h"
#include "pages/PanelLayouts.h"
#include "support/FileSystem.h"
#include "support/Text.h"
#include "visit/Scores.h"
#include "visit/StrideSelection.h"
#include "visit/TrialCurves.h"

namespace pages {

using modVantrel::FileState;
using modVantrel::GaitSide;
using modVantrel::PointKind;
using modVantrel::PointKinds;
using modVantrel::PointSamples;

namespace {

// The day on which the file was last written, in the time of this computer.
std::string DateOfFile(const std::string& name) {
  const auto written = modAllPurpose::LastWritten(name);
  if (!written) return {};
  const std::time_t seconds = std::chrono::system_clock::to_time_t(*written);
  try {
    return fmt::format("{:%Y-%m-%d}", fmt::localtime(seconds));
  } catch (const fmt::format_error&) {
    return {};
  }
}

bool Asks(const TrialReading& reading, PageKind kind) {
  return std::ranges::find(reading.Kinds, kind) != reading.Kinds.end();
}

std::vector<TrialStride> StridesOf(const FileState& state, bool withMeasures) {
  std::vector<TrialStride> strides;
  for (const modVantrel::StrideRecord& record : state.GaitEvents.ValidStrides) {
    const visit::GaitMeasures times = visit::TimeMeasuresOf(record);
    strides.push_back({record.Side, record.Number, visit::IsComplete(state, record),
                       times.FootOff.value_or(0), times.OppositeFootOff.value_or(0),
                       times.OppositeFootContact.value_or(0), std::nullopt});
  }
  if (!withMeasures) return strides;
  auto measures = visit::MeasuresOfStrides(state);
  auto next = measures.begin();
  for (TrialStride& stride : strides) {
    if (stride.IsComplete && next != measures.end()) stride.Measures = *next++;
  }
  return strides;
}

// A label of a page, without its letter.
using PageLabel = std::pair<std::string_view, PointKind>;

std::vector<PageLabel> LabelsOf(const TrialReading& reading) {
  std::vector<PageLabel> labels;
  const auto add = [&labels](std::string_view label, PointKind kind) {
    if (std::ranges::find(labels, label, &PageLabel::first) == labels.end()) {
      labels.emplace_back(label, kind);
    }
  };
  for (const PageKind kind : reading.Kinds) {
    for (const PanelLayout& panel : PanelsOf(kind)) add(panel.Label, panel.Kind);
  }
  if (!Asks(reading, PageKind::Scores)) return labels;
  for (const auto& variable : visit::kScoredVariables) add(variable.Label, PointKind::Angle);
  return labels;
}

// Reads labels of one trial, each once for all its strides, and keeps the samples of none.
class LabelReader {
 public:
  explicit LabelReader(const FileState& state) : state_(state), kinds_(state) {}

  const PointKinds& Kinds() const { return kinds_; }

  // The label's curves over the strides of its side. `kind` names its unit, also where the file
  // does not list it.
  TrialLabel OverStrides(std::int32_t point, PointKind kind) const {
    TrialLabel label;
    label.Label = state_.PointLabels[point];
    label.Unit = kinds_.UnitOf(kind);
    label.Kind = kind;
    const GaitSide side = visit::SideOfLabel(label.Label);
    modVantrel::clsGcdCalcs calcs(state_);
    const auto& strides = state_.GaitEvents.ValidStrides;
    for (std::int32_t i = 1; i <= strides.Count(); ++i) {
      if (side != GaitSide::None && strides[i].Side != side) continue;
      label.Strides.push_back(OverStride(calcs, point, i));
    }
    if (label.Strides.empty()) return label;
    label.HasNotANumber = HasNotANumber(calcs.SamplesOfPoint(point));
    if (label.HasNotANumber) {
      for (LabelStride& stride : label.Strides) stride.Missing.set();
    }
    return label;
  }

  LabelOverTime OverTime(std::int32_t point) const {
    LabelOverTime label;
    label.Label = state_.PointLabels[point];
    label.Unit = kinds_.UnitOf(label.Label);
    for (const auto& sample : ReadPointDataForIndex(state_, point)) {
      label.Times.push_back(sample.Time);
      for (std::size_t i = 0; i < label.Values.size(); ++i) {
        const float value = ComponentOf(sample, modVantrel::kComponents.at(i));
        const bool isThere = sample.IsSeen() && std::isfinite(value);
        label.Values.at(i).push_back(isThere ? std::optional(value) : std::nullopt);
      }
    }
    return label;
  }

 private:
  LabelStride OverStride(modVantrel::clsGcdCalcs& calcs, std::int32_t point,
                         std::int32_t index) const {
    const modVantrel::StrideRecord& record = state_.GaitEvents.ValidStrides[index];
    const PointSamples& samples = calcs.SamplesOfPoint(point);
    LabelStride stride;
    stride.Stride = static_cast<std::size_t>(index) - 1;
    stride.Curve = calcs.NormalizePointForStride(point, index);
    stride.Missing = MissingInstants(state_, samples, stride.Curve);
    stride.EntersMeans =
        visit::IsComplete(state_, record) && visit::IsSeenThrough(state_, samples, record);
    return stride;
  }

  const FileState& state_;
  PointKinds kinds_;
};

std::vector<TrialLabel> ReadLabels(const FileState& state, const LabelReader& reader,
                                   const std::vector<PageLabel>& labels) {
  std::vector<TrialLabel> read;
  for (const auto& [label, kind] : labels) {
    for (const char letter : {'L', 'R'}) {
      const std::int32_t point = GetPointLabelIndex(state, letter + std::string(label));
      if (point != 0) read.push_back(reader.OverStrides(point, kind));
    }
  }
  return read;
}

std::map<PointKind, std::string> UnitsOf(const PointKinds& kinds) {
  std::map<PointKind, std::string> units;
  for (const PointKind kind : {PointKind::Angle, PointKind::Moment, PointKind::Power}) {
    units.emplace(kind, kinds.UnitOf(kind));
  }
  return units;
}

std::vector<LabelOverTime> ReadOverTime(const FileState& state, const LabelReader& reader,
                                        const std::vector<std::string>& labels) {
  std::vector<LabelOverTime> read;
  std::set<std::int32_t> known;
  for (const std::string& label : labels) {
    const std::int32_t point = GetPointLabelIndex(state, label);
    if (point != 0 && known.insert(point).second) read.push_back(reader.OverTime(point));
  }
  return read;
}

std::vector<modVantrel::EventRecord> EventsOf(const modVantrel::GaitEventState& gait) {
  std::vector<modVantrel::EventRecord> events;
  for (const auto* list :
       {&gait.SidedStrikeOffEvents, &gait.SidedGeneralEvents, &gait.NonSidedEvents}) {
    events.insert(events.end(), list->begin(), list->end());
  }
  return events;
}

}  // namespace

TrialValues ReadTrialValues(const FileState& state, const TrialReading& reading) {
  TrialValues values;
  values.File = state.OpenC3dFileSpec;
  values.Date = DateOfFile(values.File);
  values.Rate = double{state.Header.PointFrameRate};
  values.Strides = StridesOf(state, Asks(reading, PageKind::Measures));
  const LabelReader reader(state);
  values.Labels = ReadLabels(state, reader, LabelsOf(reading));
  values.Units = UnitsOf(reader.Kinds());
  values.OverTime = ReadOverTime(state, reader, reading.LabelsOverTime);
  values.Events = EventsOf(state.GaitEvents);
  return values;
}

}  // namespace pages
