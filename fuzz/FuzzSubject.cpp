// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "gait/SubjectFile.h"
#include "gait/SubjectRecord.h"

namespace {

void Require(bool holds, std::string_view what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

// A value is a piece of one line, without white space around it.
void CheckValue(std::string_view text, std::string_view value) {
  if (value.empty()) return;
  const char* const end = text.data() + text.size();
  Require(value.data() >= text.data() && value.data() + value.size() <= end, "a piece of the text");
  Require(value.find_first_of("\r\n") == std::string_view::npos, "within a line");
  constexpr std::string_view kWhite = " \t\v\f";
  Require(kWhite.find(value.front()) == std::string_view::npos, "nothing in front of it");
  Require(kWhite.find(value.back()) == std::string_view::npos, "nothing behind it");
}

// The same from a file of LF ends: an end of line in another form adds at most an empty line.
void CheckLineEnds(std::string text, std::string_view key, std::string_view value) {
  std::replace(text.begin(), text.end(), '\r', '\n');
  Require(modVantrel::IniValue(text, key) == value, "one value for each form of line end");
}

void CheckDate(std::string_view value) {
  const auto date = modVantrel::ParseIsoDate(value);
  if (date) Require(date->ok(), "a date of the calendar");
  (void)modVantrel::AgeInYears(date, date);
}

}  // namespace

// Bytes as a file "subject.ini".
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  const std::string text = modVantrel::SubjectFileText(bytes);
  constexpr std::array<std::string_view, 4> kKeys = {"GENDER", "DOB", "DATE", ""};
  for (const std::string_view key : kKeys) {
    const std::string_view value = modVantrel::IniValue(text, key);
    CheckValue(text, value);
    CheckLineEnds(text, key, value);
    CheckDate(value);
    (void)modVantrel::GenderName(value);
  }
  return 0;
}
