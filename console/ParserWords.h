// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include <CLI/App.hpp>

namespace console {

// A command line in words that the parser cannot misread, and the name of the first option in it
// that the parser does not know, and of the first that is given a value and takes none, as in
// "--overwrite=no"; empty where there is no such option.
struct ParserWords {
  std::vector<std::string> Words;
  std::string UnknownOption;
  std::string FlagWithValue;
};

// What begins with a dash is an option, but for a lone dash, the value of an option, and what
// stands behind "--".
ParserWords WordsOf(const std::vector<std::string>& arguments, const CLI::App& app);

// Lets the options of `app`, all of which it must have by now, take their values out of such words.
void TakeValuesOutOfWords(CLI::App& app);

}  // namespace console
