// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/LabelTables.h"

#include <utility>

#include <fmt/format.h>

#include "c3d/ParameterSection.h"
#include "support/Arithmetic.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::OneBasedTable;
using modAllPurpose::UpperCase;

namespace {

constexpr std::int32_t kMostEntries = 255;  // of one dimension, and so of one parameter

// Fills as much of `table` as `param` has entries.
void FillFrom(const ParamRecord& param, std::string_view prefix,
              OneBasedTable<std::string>& table) {
  const TextArray& texts = param.TextValues;
  for (std::int32_t i = 1; i <= table.Count() && texts.Holds(ElementAt(i)); ++i) {
    table[i] = WithoutPrefix(texts.At(ElementAt(i)), prefix);
  }
}

// Calls `take(number, text)` for each entry of the continuations of `param`, from 256 to `count`,
// up to the first one that the file lacks.
template <typename Take>
void ForFurtherEntries(const FileState& state, std::string_view group, std::string_view param,
                       std::int32_t count, Take take) {
  for (std::int32_t first = kMostEntries; first < count; first += kMostEntries) {
    const std::string name = fmt::format("{}{}", param, first / kMostEntries + 1);
    const GroupAndParam further = FindGroupAndParam(state, group, name);
    if (!further.BothFound()) return;
    const TextArray& texts = further.Param.TextValues;
    for (std::int32_t k = 1; first + k <= count && texts.Holds(ElementAt(k)); ++k) {
      take(first + k, texts.At(ElementAt(k)));
    }
  }
}

void AddFurtherEntries(const FileState& state, std::string_view group, std::string_view param,
                       OneBasedTable<std::string>& table) {
  ForFurtherEntries(state, group, param, table.Count(),
                    [&](std::int32_t i, const std::string& text) {
                      table[i] = WithoutPrefix(text, state.LabelPrefix);
                    });
}

}  // namespace

void ReadLabelPrefix(FileState& state) {
  const GroupAndParam uses = FindGroupAndParam(state, "SUBJECTS", "USES_PREFIXES");
  if (const auto used = uses.Param.IntegerValues.First()) state.UsesPrefixes = *used != 0;
  if (!state.UsesPrefixes) return;
  const GroupAndParam prefixes = FindGroupAndParam(state, "SUBJECTS", "LABEL_PREFIXES");
  if (auto prefix = prefixes.Param.TextValues.First()) state.LabelPrefix = std::move(*prefix);
}

std::string WithoutPrefix(std::string_view label, std::string_view prefix) {
  // Upper-casing keeps the number of bytes, so the cut falls between the same characters.
  if (UpperCase(label.substr(0, prefix.size())) == UpperCase(prefix)) {
    label.remove_prefix(prefix.size());
  }
  return std::string(label);
}

void FillPointLabels(FileState& state) {
  state.PointLabels = OneBasedTable<std::string>(state.Header.PointLabelCount);
  FillFrom(FindGroupAndParam(state, "POINT", "LABELS").Param, state.LabelPrefix, state.PointLabels);
}

void FillAnalogLabels(FileState& state) {
  state.AnalogLabels = {};
  state.AnalogDescriptions = {};
  if (state.AnalogChannelsCount == 0) return;
  const std::int32_t channels =
      modAllPurposeNumbers::RoundToLong(double{state.AnalogChannelsCount});
  state.AnalogLabels = OneBasedTable<std::string>(channels);
  state.AnalogDescriptions = OneBasedTable<std::string>(channels);

  const GroupAndParam labels = FindGroupAndParam(state, "ANALOG", "LABELS");
  const GroupAndParam descriptions = FindGroupAndParam(state, "ANALOG", "DESCRIPTIONS");
  if (!labels.BothFound() || !descriptions.BothFound()) return;
  FillFrom(labels.Param, state.LabelPrefix, state.AnalogLabels);
  FillFrom(descriptions.Param, state.LabelPrefix, state.AnalogDescriptions);
}

OneBasedTable<std::string> ReadTextTable(const FileState& state, std::string_view group,
                                         std::string_view param, std::int32_t count) {
  const BinaryFile::Look look(state.C3dFileNumber);
  OneBasedTable<std::string> table(count);
  FillFrom(FindGroupAndParam(state, group, param).Param, "", table);
  ForFurtherEntries(state, group, param, count,
                    [&](std::int32_t i, std::string text) { table[i] = std::move(text); });
  return table;
}

void AddFurtherLabels(FileState& state) {
  const BinaryFile::Look look(state.C3dFileNumber);
  AddFurtherEntries(state, "POINT", "LABELS", state.PointLabels);
  AddFurtherEntries(state, "ANALOG", "LABELS", state.AnalogLabels);
  AddFurtherEntries(state, "ANALOG", "DESCRIPTIONS", state.AnalogDescriptions);
}

void DropFurtherLabels(FileState& state) {
  for (auto* table : {&state.PointLabels, &state.AnalogLabels, &state.AnalogDescriptions}) {
    for (std::int32_t i = kMostEntries + 1; i <= table->Count(); ++i) (*table)[i].clear();
  }
}

}  // namespace modVantrel
