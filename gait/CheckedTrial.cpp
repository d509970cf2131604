// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/CheckedTrial.h"

#include <cmath>
#include <cstddef>
#include <span>

#include <fmt/format.h>

#include "c3d/FrameData.h"
#include "c3d/LabelTables.h"
#include "c3d/PointSurvey.h"
#include "c3d/StoredNumbers.h"
#include "gait/CheckText.h"
#include "gait/EventExtraction.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::IgnoringErrors;

namespace {

constexpr std::int32_t kMostEntries = 255;  // of one dimension

void ReadHeaderAsStored(CheckedTrial& trial) {
  BinaryFile& file = trial.State.C3dFileNumber;
  file.Seek(1);
  trial.Header = ParseHeader(file.Read(kBlockSize).first<kBlockSize>());
  ConvertDecFloatInPlace(trial.Header.ScaleFactor, trial.State.ProcessorType);
  ConvertDecFloatInPlace(trial.Header.PointFrameRate, trial.State.ProcessorType);
}

std::string TextOfBytes(std::span<const std::byte> bytes) {
  std::string text;
  for (const std::byte byte : bytes) text += static_cast<char>(byte);
  return text;
}

// Appends the labels that one table gives to the points or channels behind number `before`.
void AppendLabels(const CheckedTrial& trial, const TextArray& texts, std::int32_t before,
                  LabelsOfKind& labels) {
  for (std::int32_t k = 1; before + k <= labels.Wanted && texts.Holds(ElementAt(k)); ++k) {
    const auto offset = static_cast<std::size_t>(k - 1);
    labels.Given.push_back({before + k,
                            WithoutPrefix(texts.InFileOrder(offset), trial.State.LabelPrefix),
                            TextOfBytes(texts.BytesInFileOrder(offset))});
  }
}

void ReadLabels(const CheckedTrial& trial, std::string_view group, LabelsOfKind& labels) {
  for (std::int32_t before = 0; before < labels.Wanted; before += kMostEntries) {
    const std::int32_t table = before / kMostEntries + 1;
    const std::string name = table == 1 ? "LABELS" : fmt::format("LABELS{}", table);
    AppendLabels(trial, trial.Param(group, name).TextValues, before, labels);
  }
}

std::int32_t ChannelCount(const FileState& state) {
  return state.AnalogChannelsCount > 0
             ? static_cast<std::int32_t>(std::nearbyint(state.AnalogChannelsCount))
             : 0;
}

}  // namespace

ParamRecord CheckedTrial::Param(std::string_view group, std::string_view param) const {
  return Params ? Params->Param(group, param) : ParamRecord();
}

std::string CheckedTrial::PointName(std::int32_t index) const {
  std::string number = fmt::format("point {}", index);
  const std::string name =
      index <= State.PointLabels.Count() ? State.PointLabels[index] : std::string();
  if (Shown(name).empty()) return number;
  return GetPointLabelIndex(State, name) == index ? name : fmt::format("{} ({})", name, number);
}

void ReadTrial(CheckedTrial& trial, const std::string& file) {
  FileState& state = trial.State;
  trial.Outcome = ExamineC3dFile(state, file, FindGaitEvents);
  if (!state.C3dFileNumber.IsOpen()) return;
  trial.FileSize = state.C3dFileNumber.Size();
  IgnoringErrors([&] { ReadHeaderAsStored(trial); });
  if (state.ProcessorType == 0) return;

  trial.Params.emplace(state);
  IgnoringErrors([&] { AddFurtherLabels(state); });
  trial.Kinds.emplace(state);
  trial.FrameCount = WholeFrameCount(state);
  trial.Points = {"POINT:LABELS", "point", state.Header.PointLabelCount, {}};
  trial.Channels = {"ANALOG:LABELS", "channel", ChannelCount(state), {}};
  IgnoringErrors([&] { ReadLabels(trial, "POINT", trial.Points); });
  IgnoringErrors([&] { ReadLabels(trial, "ANALOG", trial.Channels); });
}

std::optional<double> NumberOf(const ParamRecord& param) {
  if (const auto integer = param.IntegerValues.First()) return UnsignedWord(*integer);
  if (const auto single = param.SingleValues.First()) return *single;
  if (const auto byte = param.ByteValues.First()) return *byte;
  return std::nullopt;
}

}  // namespace modVantrel
