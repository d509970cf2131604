// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/CheckText.h"

#include <fmt/format.h>

#include "gait/EventNames.h"
#include "support/NumberForms.h"

namespace modVantrel {

using modAllPurposeNumbers::FormatNumber;
using modAllPurposeNumbers::NumberPattern;

namespace {

constexpr NumberPattern kSeconds("0.000");

}  // namespace

std::string Counted(std::int64_t count, std::string_view thing) {
  return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
}

std::string Listed(const std::vector<std::string>& names) {
  constexpr std::size_t kMostNames = 6;
  const bool areMany = names.size() > kMostNames + 1;
  const std::size_t shown = areMany ? kMostNames : names.size();
  std::string text;
  for (std::size_t i = 0; i < shown; ++i) {
    if (i > 0) text += i + 1 == names.size() ? " and " : ", ";
    text += names[i];
  }
  if (areMany) text += fmt::format(" and {} more", names.size() - shown);
  return text;
}

std::string SecondsText(double seconds) { return FormatNumber(kSeconds, seconds) + " s"; }

std::string NumberText(double number) {
  return modAllPurposeNumbers::GeneralForm(static_cast<float>(number));
}

std::string EventText(GaitSide side, GaitEventType type) {
  const std::string_view name = type == GaitEventType::Other ? "other event" : EventTypeName(type);
  if (side == GaitSide::None) return fmt::format("{} without side", name);
  return fmt::format("{} {}", SideName(side), name);
}

std::string EventText(const EventRecord& event) {
  return fmt::format("{} at {}", EventText(event.Side, event.Type), SecondsText(event.Time));
}

std::string StrideText(const StrideRecord& stride) {
  return fmt::format("{} stride {}", SideName(stride.Side), stride.Number);
}

std::string Shown(std::string_view text) {
  constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
  constexpr unsigned char kFirstPrinted = 32;
  text = text.substr(0, text.find_last_not_of('\0') + 1);
  std::string shown;
  for (const char byte : text) {
    if (static_cast<unsigned char>(byte) < kFirstPrinted) {
      shown += kReplacement;
    } else {
      shown += byte;
    }
  }
  return shown;
}

}  // namespace modVantrel
