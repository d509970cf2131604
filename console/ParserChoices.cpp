// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/ParserChoices.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include <CLI/CLI.hpp>

#include "console/ParserWords.h"

namespace console {

namespace {

AskedText TextOf(const CLI::App& app, const CLI::Success& asked) {
  std::ostringstream text;
  app.exit(asked, text, text);
  if (!text.str().ends_with('\n')) text << '\n';
  return {text.str()};
}

}  // namespace

CLI::Validator NotEmpty(const char* refusal) {
  return {[refusal](const std::string& text) { return text.empty() ? refusal : std::string(); },
          ""};
}

std::optional<AskedText> TakeArguments(CLI::App& app, const std::vector<std::string>& arguments,
                                       const std::function<void()>& check) {
  ParserWords words = WordsOf(arguments, app);
  std::string refusal;
  try {
    std::ranges::reverse(words.Words);  // the order in which the parser takes them
    app.parse(std::move(words.Words));
    check();
  } catch (const CLI::Success& asked) {
    return TextOf(app, asked);
  } catch (const CLI::ParseError& error) {
    refusal = error.what();
  }
  if (!words.FlagWithValue.empty()) {
    refusal = fmt::format("{} takes no value", words.FlagWithValue);
  }
  if (!words.UnknownOption.empty()) {
    refusal = fmt::format("there is no option '{}'", words.UnknownOption);
  }
  if (!refusal.empty()) throw UsageError(refusal);
  return std::nullopt;
}

}  // namespace console
