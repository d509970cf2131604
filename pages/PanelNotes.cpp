// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/PanelNotes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <fmt/format.h>

namespace pages {

using modVantrel::GaitSide;

namespace {

// The trials of which something is to be said of a label.
struct Affected {
  std::string Label;
  std::vector<std::string_view> Files;
};

// The label, and which trials those are where it is not all of them.
std::string Named(const Affected& affected, std::size_t trials) {
  if (affected.Files.size() == trials) return affected.Label;
  if (affected.Files.size() == 1) {
    return fmt::format("{} ({})", affected.Label, ShortName(affected.Files.front()));
  }
  return fmt::format("{} ({} of {} files)", affected.Label, affected.Files.size(), trials);
}

// The labels of both sides in whose trials `isAffected` holds, one behind the other; empty for
// none.
template <typename Condition>
std::string LabelsWhere(const ShownTrials& shown, const PanelLayout& layout, Condition isAffected) {
  std::string text;
  for (const GaitSide side : kSides) {
    Affected affected{WithLetter(side, layout.Label), {}};
    for (std::size_t file = 0; file < shown.Trials().size(); ++file) {
      const TrialLabel* label = shown.FindLabel(file, side, layout.Label);
      if (isAffected(label)) affected.Files.push_back(shown.Trials()[file].File);
    }
    if (affected.Files.empty()) continue;
    if (!text.empty()) text += ", ";
    text += Named(affected, shown.Trials().size());
  }
  return text;
}

bool HasNoNumbers(const TrialLabel& label, modVantrel::Component part) {
  const auto isNoNumber = [part](const modVantrel::NormalizedPoint& point) {
    return !std::isfinite(ComponentOf(point, part));
  };
  return label.HasNotANumber ||
         std::ranges::any_of(label.Strides, [&isNoNumber](const LabelStride& stride) {
           return std::ranges::any_of(stride.Curve, isNoNumber);
         });
}

}  // namespace

std::vector<std::string> NotesOf(const ShownTrials& shown, const PanelLayout& layout) {
  std::vector<std::string> notes;
  std::string lacking =
      LabelsWhere(shown, layout, [](const TrialLabel* label) { return label == nullptr; });
  if (!lacking.empty()) notes.push_back(std::move(lacking));
  const std::string damaged = LabelsWhere(shown, layout, [&layout](const TrialLabel* label) {
    return label != nullptr && HasNoNumbers(*label, layout.Part);
  });
  if (!damaged.empty()) notes.push_back("Values that are no numbers: " + damaged);
  const ShownUnit unit = shown.UnitOf(layout.Kind, layout.Label);
  const std::string others = LabelsWhere(shown, layout, [&](const TrialLabel* label) {
    return label != nullptr && UnitShownFor(layout.Kind, label->Unit).Text != unit.Text;
  });
  if (!others.empty()) notes.push_back("In another unit: " + others);
  return notes;
}

}  // namespace pages
