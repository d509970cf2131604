// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <map>
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

// The names of the labels of which `chosen` is true.
template <typename Chosen>
std::vector<std::string> NamesWhere(const LabelsOfKind& labels, Chosen chosen) {
  std::vector<std::string> names;
  for (const FileLabel& label : labels.Given) {
    if (chosen(label)) names.push_back(Shown(label.Name));
  }
  return names;
}

std::string Numbers(const std::vector<std::int32_t>& numbers) {
  std::vector<std::string> texts;
  for (const std::int32_t number : numbers) texts.push_back(fmt::format("{}", number));
  return Listed(texts);
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
               fmt::format("{} stand behind the first {} ({}): the fixed reports and GCD files "
                           "leave them out unless --further-labels is given.",
                           Counted(static_cast<std::int64_t>(further.size()), "label"),
                           kLastOfFirstTable, Listed(further)));
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
    findings.Add(
        "labels-repeated", name,
        fmt::format("{} are {} called {}: whoever asks for it gets {} {}, so check that "
                    "this is the right one.",
                    ThingsByNumber(labels.Thing, numbers), alike.size() == 2 ? "both" : "all", name,
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
      fmt::format("{} {} an empty label and cannot be asked for by one.",
                  ThingsByNumber(labels.Thing, numbers), numbers.size() == 1 ? "has" : "have"));
}

void CheckPadding(const LabelsOfKind& labels, Findings& findings) {
  const auto padded = NamesWhere(
      labels, [](const FileLabel& label) { return label.Bytes.find('\0') != std::string::npos; });
  if (padded.empty()) return;
  findings.Add("labels-padded", std::string(labels.Param),
               fmt::format("{} hold zero bytes where blanks belong ({}): the program does not find "
                           "them by their names.",
                           Counted(static_cast<std::int64_t>(padded.size()),
                                   fmt::format("{} label", labels.Thing)),
                           Listed(padded)));
}

// How many bytes behind the first one of a UTF-8 character must follow; -1 where none begins so.
int FollowingBytes(unsigned char first) {
  if (first < 0x80U) return 0;
  if (first >= 0xC2U && first <= 0xDFU) return 1;
  if (first >= 0xE0U && first <= 0xEFU) return 2;
  if (first >= 0xF0U && first <= 0xF4U) return 3;
  return -1;
}

bool IsUtf8BeyondAscii(std::string_view bytes) {
  bool isBeyond = false;
  while (!bytes.empty()) {
    const int following = FollowingBytes(static_cast<unsigned char>(bytes.front()));
    if (following < 0 || bytes.size() <= static_cast<std::size_t>(following)) return false;
    bytes.remove_prefix(1);
    isBeyond |= following > 0;
    for (int i = 0; i < following; ++i) {
      if ((static_cast<unsigned char>(bytes.front()) & 0xC0U) != 0x80U) return false;
      bytes.remove_prefix(1);
    }
  }
  return isBeyond;
}

void CheckEncoding(const LabelsOfKind& labels, Findings& findings) {
  std::vector<std::string> names;
  for (const FileLabel& label : labels.Given) {
    if (!IsUtf8BeyondAscii(label.Bytes)) continue;
    names.push_back(fmt::format("{} for {}", Shown(label.Name), Shown(Trimmed(label.Bytes))));
  }
  if (names.empty()) return;
  findings.Add("labels-encoding", std::string(labels.Param),
               fmt::format("{} seem to be written as UTF-8, but the format's texts are read as "
                           "Windows-1252, so they come out as {}.",
                           Counted(static_cast<std::int64_t>(names.size()),
                                   fmt::format("{} label", labels.Thing)),
                           Listed(names)));
}

void CheckSingleLetters(const LabelsOfKind& points, Findings& findings) {
  for (const FileLabel& label : points.Given) {
    const std::string key = SearchKey(label.Name);
    if (key != "L" && key != "R") continue;
    findings.Add("label-single-letter", label.Name,
                 fmt::format("Point {} is called {}: in the GCD files of the {} side it would "
                             "stand for every curve whose own label is missing.",
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
