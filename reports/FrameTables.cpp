// SPDX-License-Identifier: GPL-3.0-or-later

// The tables of the data: points, channels and normalised curves.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "c3d/FrameData.h"
#include "gait/EventNames.h"
#include "gait/GcdCalcs.h"
#include "reports/AskedLabels.h"
#include "reports/TrialTables.h"
#include "support/RuntimeError.h"

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
                 const PointSamples& samples, TableOutput& table) {
  const std::array<std::string_view, 2> fileAndLabel = {file, state.PointLabels[number]};
  table.BeginRowsWith(fileAndLabel);
  for (std::int32_t frame = 1; frame <= samples.Count(); ++frame) {
    const PointSample& sample = samples[frame];
    table.Number(FrameNumber(state, frame));
    table.Numbers(std::array{sample.Time, sample.X, sample.Y, sample.Z,
                             modVantrel::ResidualOf(sample, state.Header.ScaleFactor)});
    table.EndRow();
  }
  table.BeginRowsWith({});
}

// How many of the labels from `numbers` on are neighbours in the file and read together: as many as
// keep within some 16 MB.
std::int32_t NeighboursOf(const FileState& state, std::span<const std::int32_t> numbers) {
  constexpr std::int32_t kMostSamples = 400'000;
  constexpr std::int32_t kMost = 64;
  const auto most = static_cast<std::size_t>(
      std::clamp(kMostSamples / std::max(state.PointFrameCount, 1), 1, kMost));
  std::size_t count = 1;
  while (count < std::min(most, numbers.size()) && numbers[count] == numbers[count - 1] + 1) {
    ++count;
  }
  return static_cast<std::int32_t>(count);
}

// Nothing where they cannot be read together: one by one, the rows before an error then stand.
std::vector<PointSamples> ReadNeighbours(const FileState& state, std::int32_t first,
                                         std::int32_t count) {
  std::vector<PointSamples> points;
  if (count == 1) return points;
  modAllPurpose::IgnoringErrors(
      [&] { points = modVantrel::ReadPointDataForIndexes(state, first, count); });
  return points;
}

// The rows of labels that are neighbours in the file: `count` from `first` on.
void PointRowsOfNeighbours(const FileState& state, std::string_view file, std::int32_t first,
                           std::int32_t count, TableOutput& table) {
  const std::vector<PointSamples> points = ReadNeighbours(state, first, count);
  for (std::int32_t i = 0; i < count; ++i) {
    PointRowsOf(state, file, first + i,
                points.empty() ? modVantrel::ReadPointDataForIndex(state, first + i)
                               : points[static_cast<std::size_t>(i)],
                table);
  }
}

// A channel that has a label but no data, above a fraction of a channel, ends in error 9 as its
// listing does: a table must not leave out silently what was asked for.
void AnalogRowsOf(const FileState& state, std::string_view file, std::int32_t channel,
                  TableOutput& table) {
  const AnalogFrames frames = modVantrel::ReadAnalogDataForIndex(state, channel);
  const std::array<std::string_view, 2> fileAndLabel = {file, state.AnalogLabels[channel]};
  table.BeginRowsWith(fileAndLabel);
  std::int32_t sample = 0;
  for (std::int32_t i = 1; i <= state.PointFrameCount; ++i) {
    const AnalogFrame frame = frames[i];
    for (const float value : frame.Values) {
      table.Number(FrameNumber(state, i));
      table.Number(++sample);
      table.Numbers(std::array{frame.Time, value});
      table.EndRow();
    }
  }
  table.BeginRowsWith({});
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
    table.Numbers(std::array{point.Time, point.X, point.Y, point.Z});
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

AskedLabels AskedPoints(const FileState& state, const TableOptions& options) {
  return FindAskedLabels(state.PointLabels, options, "point label not found");
}

AskedLabels AskedChannels(const FileState& state, const TableOptions& options) {
  return FindAskedLabels(state.AnalogLabels, options, "analog label not found");
}

Complaints RowsOfLabels(const FileState& state, std::string_view file, const AskedLabels& asked,
                        RowsOf rows, TableOutput& table) {
  for (const std::int32_t number : asked.Numbers) rows(state, file, number, table);
  return {};
}

}  // namespace

Complaints MissingPoints(const FileState& state, const TableOptions& options) {
  return AskedPoints(state, options).Missing;
}

Complaints MissingChannels(const FileState& state, const TableOptions& options) {
  return AskedChannels(state, options).Missing;
}

Complaints PointRows(const FileState& state, std::string_view file, const TableOptions& options,
                     TableOutput& table) {
  const AskedLabels asked = AskedPoints(state, options);
  for (std::span<const std::int32_t> left = asked.Numbers; !left.empty();) {
    const std::int32_t count = NeighboursOf(state, left);
    PointRowsOfNeighbours(state, file, left.front(), count, table);
    left = left.subspan(static_cast<std::size_t>(count));
  }
  return {};
}

Complaints AnalogRows(const FileState& state, std::string_view file, const TableOptions& options,
                      TableOutput& table) {
  return RowsOfLabels(state, file, AskedChannels(state, options), AnalogRowsOf, table);
}

Complaints NormalizedRows(const FileState& state, std::string_view file,
                          const TableOptions& options, TableOutput& table) {
  return RowsOfLabels(state, file, AskedPoints(state, options), NormalizedRowsOf, table);
}

}  // namespace reports
