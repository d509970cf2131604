// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "gait/CheckText.h"
#include "gait/Checks.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::SearchKey;
using modAllPurpose::Trimmed;

namespace {

// The last label that fixed reports know.
constexpr std::int32_t kLastOfFirstTable = 255;

// A label by its name, or by its number where nothing of the name can be shown.
std::string NameOf(const LabelsOfKind& labels, const FileLabel& label) {
  std::string name = Shown(label.Name);
  return name.empty() ? fmt::format("{} {}", labels.Thing, label.Number) : name;
}

// The names of the labels of which `chosen` is true.
template <typename Chosen>
std::vector<std::string> NamesWhere(const LabelsOfKind& labels, Chosen chosen) {
  std::vector<std::string> names;
  for (const FileLabel& label : labels.Given) {
    if (chosen(label)) names.push_back(NameOf(labels, label));
  }
  return names;
}

// "1 label stands", "2 labels stand".
std::string CountedWith(const std::vector<std::string>& names, std::string_view thing,
                        std::string_view ofOne, std::string_view ofMany) {
  return fmt::format("{} {}", Counted(static_cast<std::int64_t>(names.size()), thing),
                     names.size() == 1 ? ofOne : ofMany);
}

std::string Numbers(const std::vector<std::int32_t>& numbers) {
  return Listed(TextsOf(numbers, [](std::int32_t number) { return fmt::format("{}", number); }));
}

// "Point 3" or "Points 3, 5 and 6"; `thing` in lower case.
std::string ThingsByNumber(std::string_view thing, const std::vector<std::int32_t>& numbers) {
  std::string text =
      fmt::format("{}{} {}", thing, numbers.size() == 1 ? "" : "s", Numbers(numbers));
  text.front() = modAllPurpose::UpperCase(text.substr(0, 1)).front();
  return text;
}

void CheckCount(const LabelsOfKind& labels, Findings& findings) {
  const auto given = static_cast<std::int32_t>(labels.Given.size());
  if (given >= labels.Wanted) return;
  findings.Add("labels-missing", std::string(labels.Param),
               fmt::format("{} names {} of the {}: the others cannot be asked for by a label.",
                           labels.Param, given, Counted(labels.Wanted, labels.Thing)));
}

// An open takes labels of channels only where there are descriptions too.
bool LacksDescriptions(const CheckedTrial& trial) {
  return !trial.Channels.Given.empty() && trial.Param("ANALOG", "DESCRIPTIONS").Id == 0;
}

void CheckDescriptions(const CheckedTrial& trial, Findings& findings) {
  if (!LacksDescriptions(trial)) return;
  findings.Add("labels-missing", "ANALOG:DESCRIPTIONS",
               fmt::format("ANALOG:DESCRIPTIONS is missing, and labels of channels are taken only "
                           "with it: none of the {} can be asked for by its label.",
                           Counted(trial.Channels.Wanted, trial.Channels.Thing)));
}

void CheckFurther(const LabelsOfKind& labels, Findings& findings) {
  const auto further =
      NamesWhere(labels, [](const FileLabel& label) { return label.Number > kLastOfFirstTable; });
  if (further.empty()) return;
  findings.Add("labels-further", fmt::format("{}2", labels.Param),
               fmt::format("{} behind the first {} ({}): the fixed reports and GCD files know "
                           "nothing beyond those unless --further-labels is given.",
                           CountedWith(further, "label", "stands", "stand"), kLastOfFirstTable,
                           Listed(further)));
}

void CheckRepeats(const LabelsOfKind& labels, Findings& findings) {
  std::map<std::string, std::vector<const FileLabel*>> byName;
  for (const FileLabel& label : labels.Given) {
    if (!Trimmed(label.Name).empty()) byName[SearchKey(label.Name)].push_back(&label);
  }
  for (const auto& [key, alike] : byName) {
    if (alike.size() < 2) continue;
    std::vector<std::int32_t> numbers;
    for (const FileLabel* label : alike) numbers.push_back(label->Number);
    const std::string name = Shown(alike.front()->Name);
    findings.Add("labels-repeated", name.empty() ? std::string(labels.Param) : name,
                 fmt::format("{} {} {}: whoever asks for it gets {} {}, so check that this is the "
                             "right one.",
                             ThingsByNumber(labels.Thing, numbers),
                             alike.size() == 2 ? "are both" : "are all",
                             name.empty() ? "named by zero bytes alone" : "called " + name,
                             labels.Thing, numbers.front()));
  }
}

void CheckEmpty(const LabelsOfKind& labels, Findings& findings) {
  std::vector<std::int32_t> numbers;
  for (const FileLabel& label : labels.Given) {
    if (Trimmed(label.Name).empty()) numbers.push_back(label.Number);
  }
  if (numbers.empty()) return;
  findings.Add(
      "labels-empty", std::string(labels.Param),
      fmt::format("{} {} an empty label, and no report finds {} by a name.",
                  ThingsByNumber(labels.Thing, numbers), numbers.size() == 1 ? "has" : "have",
                  numbers.size() == 1 ? "it" : "them"));
}

void CheckPadding(const LabelsOfKind& labels, Findings& findings) {
  const auto padded = NamesWhere(
      labels, [](const FileLabel& label) { return label.Bytes.find('\0') != std::string::npos; });
  if (padded.empty()) return;
  findings.Add(
      "labels-padded", std::string(labels.Param),
      fmt::format("{} zero bytes where blanks belong ({}): no report finds {} by name.",
                  CountedWith(padded, fmt::format("{} label", labels.Thing), "holds", "hold"),
                  Listed(padded), padded.size() == 1 ? "it" : "them"));
}

bool IsUtf8BeyondAscii(std::string_view bytes) {
  constexpr unsigned char kLastAscii = 127;
  const auto isBeyond = [](char byte) { return static_cast<unsigned char>(byte) > kLastAscii; };
  return std::ranges::any_of(bytes, isBeyond) && modAllPurpose::WithReplacements(bytes) == bytes;
}

void CheckEncoding(const LabelsOfKind& labels, Findings& findings) {
  std::vector<std::string> names;
  for (const FileLabel& label : labels.Given) {
    if (!IsUtf8BeyondAscii(label.Bytes)) continue;
    names.push_back(
        fmt::format("{} in place of {}", Shown(label.Name), Shown(Trimmed(label.Bytes))));
  }
  if (names.empty()) return;
  findings.Add(
      "labels-encoding", std::string(labels.Param),
      fmt::format("{} to be written as UTF-8, but the format's texts are read as "
                  "Windows-1252, so ask for {}; values are not touched.",
                  CountedWith(names, fmt::format("{} label", labels.Thing), "seems", "seem"),
                  Listed(names)));
}

void CheckSingleLetters(const LabelsOfKind& points, Findings& findings) {
  for (const FileLabel& label : points.Given) {
    const std::string key = SearchKey(label.Name);
    if (key != "L" && key != "R") continue;
    findings.Add("label-single-letter", label.Name,
                 fmt::format("Point {} is called {}: GCD files of the {} side would take it for "
                             "every curve whose own label is missing, so rename it.",
                             label.Number, label.Name, key == "L" ? "left" : "right"));
  }
}

void CheckUnlabelled(const LabelsOfKind& points, Findings& findings) {
  const auto names =
      NamesWhere(points, [](const FileLabel& label) { return label.Name.starts_with('*'); });
  if (names.empty()) return;
  const auto count = static_cast<std::int64_t>(names.size());
  findings.Add("unlabelled-points", "POINT:LABELS",
               fmt::format("{} {} never given a name ({}): if a marker of the subject is among "
                           "them, label it in the capture system.",
                           Counted(count, "point"), count == 1 ? "was" : "were", Listed(names)));
}

}  // namespace

void CheckLabels(const CheckedTrial& trial, Findings& findings) {
  for (const LabelsOfKind* labels : {&trial.Points, &trial.Channels}) {
    CheckCount(*labels, findings);
    CheckFurther(*labels, findings);
    CheckRepeats(*labels, findings);
    CheckEmpty(*labels, findings);
    CheckPadding(*labels, findings);
    CheckEncoding(*labels, findings);
  }
  CheckDescriptions(trial, findings);
  CheckSingleLetters(trial.Points, findings);
  CheckUnlabelled(trial.Points, findings);
}

}  // namespace modVantrel
