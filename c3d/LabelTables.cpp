// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/LabelTables.h"

#include <utility>

#include "c3d/ParameterSection.h"
#include "support/Arithmetic.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::OneBasedTable;
using modAllPurpose::UpperCase;

namespace {

// Fills as much of `table` as `param` has entries.
void FillFrom(const ParamRecord& param, std::string_view prefix,
              OneBasedTable<std::string>& table) {
  const TextArray& texts = param.TextValues;
  for (std::int32_t i = 1; i <= table.Count() && texts.Holds(ElementAt(i)); ++i) {
    table[i] = WithoutPrefix(texts.At(ElementAt(i)), prefix);
  }
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

}  // namespace modVantrel
