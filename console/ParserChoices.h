// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <CLI/App.hpp>
#include <fmt/format.h>

#include "console/Usage.h"

// What the tools' options and the reading of them have in common.
namespace console {

// A choice of an option and its name.
template <typename Choice>
using Choices = std::map<std::string, Choice>;

template <typename Choice>
std::string NamesOf(const Choices<Choice>& choices) {
  std::string names;
  for (const auto& [name, choice] : choices) names += (names.empty() ? "" : "|") + name;
  return names;
}

// The option `name`, whose value is the name of one of `choices`, which must last as long.
template <typename Choice>
void AddChoice(CLI::App& app, const std::string& name, const Choices<Choice>& choices,
               Choice& chosen, const std::string& description) {
  const CLI::Validator isKnown(
      [&choices](const std::string& text) {
        return choices.contains(text) ? std::string()
                                      : fmt::format("'{}' is none of {}", text, NamesOf(choices));
      },
      "");
  app.add_option_function<std::string>(
         name, [&choices, &chosen](const std::string& text) { chosen = choices.at(text); },
         description)
      ->type_name(NamesOf(choices))
      ->check(isKnown);
}

// Refuses an empty value with that sentence.
CLI::Validator NotEmpty(const char* refusal);

// Lets `app`, which has all its options, take `arguments`, and `check` look at what they hold,
// which may throw a CLI::ParseError. Answers with what help or version say where they were asked
// for. A UsageError names the first unknown option before anything else that is wrong.
std::optional<AskedText> TakeArguments(CLI::App& app, const std::vector<std::string>& arguments,
                                       const std::function<void()>& check);

}  // namespace console
