// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/ParserWords.h"

namespace console {

namespace {

// The parser takes a text such as "[a,b]" for a list and splits it. With a NUL in front, which no
// argument of a process can hold, it stays one text; the options take it away again.
constexpr char kShield = '\0';

std::string Shielded(std::string text) {
  if (text.starts_with('[')) text.insert(0, 1, kShield);
  return text;
}

bool IsOption(const std::string& argument) { return argument.size() > 1 && argument[0] == '-'; }

bool TakesValue(const CLI::Option* option) {
  return option != nullptr && option->get_items_expected_min() > 0;
}

}  // namespace

// The parser would take the argument behind "--name=" for its value, so names and values are words
// of their own.
ParserWords WordsOf(const std::vector<std::string>& arguments, const CLI::App& app) {
  ParserWords parsed;
  bool valueFollows = false;
  bool filesFollow = false;
  for (const std::string& argument : arguments) {
    if (valueFollows || filesFollow || !IsOption(argument) || argument == "--") {
      filesFollow = filesFollow || (argument == "--" && !valueFollows);
      valueFollows = false;
      parsed.Words.push_back(Shielded(argument));
      continue;
    }
    const auto equals = argument.find('=');
    const std::string name = argument.substr(0, equals);
    const CLI::Option* option = app.get_option_no_throw(name);
    if (option == nullptr && parsed.UnknownOption.empty()) parsed.UnknownOption = name;
    const bool valueStandsHere = equals != std::string::npos;
    const bool takesValue = TakesValue(option);
    const bool isFlag = option != nullptr && !takesValue;
    if (isFlag && valueStandsHere && parsed.FlagWithValue.empty()) parsed.FlagWithValue = name;
    parsed.Words.push_back(takesValue ? name : argument);
    if (!takesValue) continue;
    valueFollows = !valueStandsHere;
    if (valueStandsHere) parsed.Words.push_back(Shielded(argument.substr(equals + 1)));
  }
  return parsed;
}

void TakeValuesOutOfWords(CLI::App& app) {
  const CLI::Validator unshield(
      [](std::string& value) {
        if (value.starts_with(kShield)) value.erase(0, 1);
        return std::string();
      },
      "");
  for (CLI::Option* option : app.get_options()) option->transform(unshield);
}

}  // namespace console
