// SPDX-License-Identifier: GPL-3.0-or-later

// The tables of the data: points, channels and normalised curves.

#include <cstdint>
#include <string>

#include "c3d/FrameData.h"
#include "gait/EventNames.h"
#include "gait/GcdCalcs.h"
#include "reports/AskedLabels.h"
#include "reports/TrialTables.h"

namespace reports {

using modVantrel::AnalogFrame;
using modVantrel::AnalogFrames;
using modVantrel::FileState;
using modVantrel::NormalizedCurve;
using modVantrel::NormalizedPoint;
using modVantrel::PointSample;
using modVantrel::PointSamples;
using modVantrel::StrideRecord;

namespace {

constexpr std::int32_t kPercentStep = 100 / (modVantrel::kNormalizedPoints - 1);

std::int32_t FrameNumber(const FileState& state, std::int32_t frameIndex) {
  return state.Header.FirstPointFrameNumber + frameIndex - 1;
}

void PointRowsOf(const FileState& state, std::string_view file, std::int32_t number,
                 TableOutput& table) {
  const PointSamples samples = modVantrel::ReadPointDataForIndex(state, number);
  for (std::int32_t frame = 1; frame <= samples.Count(); ++frame) {
    const PointSample& sample = samples[frame];
    table.Text(file);
    table.Text(state.PointLabels[number]);
    table.Number(FrameNumber(state, frame));
    for (const float value : {sample.Time, sample.X, sample.Y, sample.Z,
                              modVantrel::ResidualOf(sample, state.Header.ScaleFactor)}) {
      table.Number(value);
    }
    table.EndRow();
  }
}

void AnalogRowsOf(const FileState& state, std::string_view file, std::int32_t channel,
                  TableOutput& table) {
  const AnalogFrames frames = modVantrel::ReadAnalogDataForIndex(state, channel);
  std::int32_t sample = 0;
  for (std::int32_t i = 1; i <= frames.Count(); ++i) {
    const AnalogFrame frame = frames[i];
    for (const float value : frame.Values) {
      table.Text(file);
      table.Text(state.AnalogLabels[channel]);
      table.Number(FrameNumber(state, i));
      table.Number(++sample);
      table.Number(frame.Time);
      table.Number(value);
      table.EndRow();
    }
  }
}

void CurveRows(const NormalizedCurve& curve, std::string_view file, std::string_view label,
               const StrideRecord& stride, TableOutput& table) {
  std::int32_t percent = 0;
  for (const NormalizedPoint& point : curve) {
    table.Text(file);
    table.Text(modVantrel::SideName(stride.Side));
    table.Number(stride.Number);
    table.Text(label);
    table.Number(percent);
    for (const float value : {point.Time, point.X, point.Y, point.Z}) table.Number(value);
    table.EndRow();
    percent += kPercentStep;
  }
}

void NormalizedRowsOf(const FileState& state, std::string_view file, std::int32_t number,
                      TableOutput& table) {
  // Calculations of its own for each label: the samples of all would fill the memory.
  modVantrel::clsGcdCalcs calcs(state);
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    CurveRows(calcs.NormalizePointForStride(number, i), file, state.PointLabels[number],
              state.GaitEvents.ValidStrides[i], table);
  }
}

using RowsOf = void (*)(const FileState&, std::string_view, std::int32_t, TableOutput&);

Complaints RowsOfLabels(const FileState& state, std::string_view file, const AskedLabels& asked,
                        RowsOf rows, TableOutput& table) {
  for (const std::int32_t number : asked.Numbers) rows(state, file, number, table);
  return asked.Missing;
}

constexpr const char* kNoPoint = "point label not found";
constexpr const char* kNoChannel = "analog label not found";

}  // namespace

Complaints PointRows(const FileState& state, std::string_view file, const TableOptions& options,
                     TableOutput& table) {
  return RowsOfLabels(state, file, FindAskedLabels(state.PointLabels, options, kNoPoint),
                      PointRowsOf, table);
}

Complaints AnalogRows(const FileState& state, std::string_view file, const TableOptions& options,
                      TableOutput& table) {
  return RowsOfLabels(state, file, FindAskedLabels(state.AnalogLabels, options, kNoChannel),
                      AnalogRowsOf, table);
}

Complaints NormalizedRows(const FileState& state, std::string_view file,
                          const TableOptions& options, TableOutput& table) {
  return RowsOfLabels(state, file, FindAskedLabels(state.PointLabels, options, kNoPoint),
                      NormalizedRowsOf, table);
}

}  // namespace reports
