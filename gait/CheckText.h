// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/GaitEvents.h"

// How findings write what they name.
namespace modVantrel {

// "1 frame", "2 frames".
std::string Counted(std::int64_t count, std::string_view thing);

// "A", "A and B", "A, B and C"; of many the first ones, "A, B, C, D, E, F and 12 more".
std::string Listed(const std::vector<std::string>& names);

// What `textOf` says of each of `things`, to be listed.
template <typename Things, typename TextOf>
std::vector<std::string> TextsOf(const Things& things, TextOf textOf) {
  std::vector<std::string> texts(things.size());
  std::ranges::transform(things, texts.begin(), textOf);
  return texts;
}

// "1.250 s".
std::string SecondsText(double seconds);

// Up to seven digits, without zeros at the end.
std::string NumberText(double number);

// "Left Foot Strike", "Foot Off without side".
std::string EventText(GaitSide side, GaitEventType type);
// "Left Foot Strike at 1.250 s".
std::string EventText(const EventRecord& event);

// "Left stride 2".
std::string StrideText(const StrideRecord& stride);

// A text of the file without control characters; zero bytes at its end are left out, others are
// shown as U+FFFD.
std::string Shown(std::string_view text);

}  // namespace modVantrel
