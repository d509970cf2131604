// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/TrialReading.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <utility>

#include "c3d/FrameData.h"
#include "c3d/FrameLayout.h"
#include "c3d/LabelTables.h"
#include "c3d/PointKinds.h"
#include "gait/GcdCalcs.h"
#include "gait/StrideMeasures.h"
#include "support/RuntimeError.h"
#include "support/Text.h"
#include "visit/TrialCurves.h"

namespace python {

using modVantrel::FileState;
using modVantrel::GaitSide;
using modVantrel::PointSample;

namespace {

constexpr std::size_t kCoordinates = 3;

std::size_t FrameCount(const FileState& state) {
  return static_cast<std::size_t>(state.PointFrameCount);
}

void Append(std::vector<float>& values, const modVantrel::NormalizedCurve& curve) {
  for (const modVantrel::NormalizedPoint& point : curve) {
    values.insert(values.end(), {point.X, point.Y, point.Z});
  }
}

// The file must reach into the last frame before memory is taken for the samples of all.
void RequireFrames(const FileState& state) {
  const auto size = static_cast<std::uint64_t>(modVantrel::LayoutOf(state).FrameSize);
  state.C3dFileNumber.Seek(state.SeekPtrForFirstFrameData);
  state.C3dFileNumber.RequireLeft(size * (FrameCount(state) - 1));
}

}  // namespace

std::vector<float> ReadCoordinates(const FileState& state, std::int32_t point) {
  constexpr float kMissing = std::numeric_limits<float>::quiet_NaN();
  std::vector<float> values(FrameCount(state) * kCoordinates, kMissing);
  float* next = values.data();
  for (const PointSample& sample : modVantrel::ReadPointDataForIndex(state, point)) {
    if (sample.IsSeen()) std::ranges::copy(std::array{sample.X, sample.Y, sample.Z}, next);
    next += kCoordinates;
  }
  return values;
}

std::vector<float> ReadResiduals(const FileState& state, std::int32_t point) {
  std::vector<float> values;
  values.reserve(FrameCount(state));
  for (const PointSample& sample : modVantrel::ReadPointDataForIndex(state, point)) {
    values.push_back(modVantrel::ResidualOf(sample, state.Header.ScaleFactor));
  }
  return values;
}

ChannelSamples ReadSamples(const FileState& state, std::int32_t channel) {
  auto frames = modVantrel::ReadAnalogDataForIndex(state, channel);
  // The samples of all frames stand in one block, frame after frame.
  const modVantrel::SampleValues first = frames[1].Values;
  const std::size_t count = FrameCount(state) * static_cast<std::size_t>(first.Count());
  return {std::move(frames), std::span(first.begin(), count)};
}

std::vector<float> FrameTimes(const FileState& state) {
  const double step = modVantrel::SecondsPerFrame(state);
  std::vector<float> times;
  times.reserve(FrameCount(state));
  for (std::int32_t i = 0; i < state.PointFrameCount; ++i) {
    times.push_back(modVantrel::TimeOfFrame(state, step, i));
  }
  return times;
}

std::vector<double> SampleTimes(const FileState& state) {
  const std::int32_t samples = SamplesPerFrame(state);
  if (samples > 0) RequireFrames(state);
  const double step = modVantrel::SecondsPerFrame(state);
  std::vector<double> times;
  times.reserve(FrameCount(state) * static_cast<std::size_t>(samples));
  for (std::int32_t i = 0; i < state.PointFrameCount; ++i) {
    for (std::int32_t k = 0; k < samples; ++k) {
      times.push_back(step * (i + static_cast<double>(k) / samples) + double{state.WalkStartTime});
    }
  }
  return times;
}

std::vector<float> ReadCurves(const FileState& state, std::int32_t point) {
  const GaitSide side = visit::SideOfLabel(state.PointLabels[point]);
  modVantrel::clsGcdCalcs calcs(state);
  std::vector<float> values;
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    const GaitSide own = state.GaitEvents.ValidStrides[i].Side;
    if (side == GaitSide::None || side == own) {
      Append(values, calcs.NormalizePointForStride(point, i));
    }
  }
  return values;
}

std::vector<float> WorkOutMeasures(const FileState& state) {
  modVantrel::clsGcdCalcs calcs(state);
  std::vector<float> values;
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    const auto measures = calcs.CalcSingleValueMeasures(i);
    for (const auto& measure : modVantrel::MeasureTable()) {
      values.push_back(measure.ValueOf(measures));
    }
  }
  return values;
}

std::vector<std::string> MeasureUnits(const FileState& state) {
  const modVantrel::PointKinds kinds(state);
  const std::string& length = kinds.UnitOf(modVantrel::PointKind::Marker);
  std::vector<std::string> units;
  for (const auto& measure : modVantrel::MeasureTable()) {
    units.push_back(modVantrel::UnitText(measure.Unit, length));
  }
  return units;
}

LabelNotes ReadPointNotes(const FileState& state) {
  const std::int32_t count = state.PointLabels.Count();
  const auto descriptions = modVantrel::ReadTextTable(state, "POINT", "DESCRIPTIONS", count);
  const modVantrel::PointKinds kinds(state);
  LabelNotes notes{{descriptions.begin(), descriptions.end()}, {}};
  for (const std::string& label : state.PointLabels) notes.Units.push_back(kinds.UnitOf(label));
  return notes;
}

LabelNotes ReadChannelNotes(const FileState& state) {
  const std::int32_t count = state.AnalogLabels.Count();
  const auto descriptions = modVantrel::ReadTextTable(state, "ANALOG", "DESCRIPTIONS", count);
  LabelNotes notes{{descriptions.begin(), descriptions.end()}, {}};
  for (const std::string& unit : modVantrel::ReadTextTable(state, "ANALOG", "UNITS", count)) {
    notes.Units.emplace_back(modAllPurpose::WithoutFilling(unit));
  }
  return notes;
}

std::int32_t SamplesPerFrame(const FileState& state) {
  return state.AnalogLabels.IsEmpty()
             ? 0
             : std::max<std::int32_t>(state.Header.AnalogSamplesPerChannel, 0);
}

}  // namespace python
