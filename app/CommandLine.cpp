// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CommandLine.h"

#include <algorithm>
#include <utility>

#include "support/FileSystem.h"
#include "support/ProgramArguments.h"

namespace app {

namespace {

bool AreSeveralFiles(const std::vector<std::string>& arguments, const std::string& joined) {
  return arguments.size() > 1 && !modAllPurpose::FileExists(FileNameOnCommandLine(joined)) &&
         std::ranges::all_of(arguments, modAllPurpose::FileExists);
}

// With the program's name before them.
std::vector<std::string> WordsOf(int argc, char** argv) {
  std::vector<std::string> words = modAllPurpose::ProgramArguments(argc, argv);
  words.insert(words.begin(), argv[0]);
  return words;
}

}  // namespace

StartWords::StartWords(int argc, char** argv)
    : words_(WordsOf(argc, argv)), count_(static_cast<int>(words_.size())) {
  for (std::string& word : words_) pointers_.push_back(word.data());
  pointers_.push_back(nullptr);
}

std::string JoinedArguments(int argc, const char* const* argv) {
  std::string line;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) line += ' ';
    line += argv[i];
  }
  return line;
}

StartLine ReadStartLine(int argc, const char* const* argv) {
  const bool showsCurves = argc > 1 && std::string_view(argv[1]) == "--curves";
  const int taken = showsCurves ? 1 : 0;
  const std::string joined = JoinedArguments(argc - taken, argv + taken);
  std::vector<std::string> files(argv + std::min(argc, taken + 1), argv + argc);
  if (AreSeveralFiles(files, joined)) return {showsCurves, {}, std::move(files)};
  return {showsCurves, joined, {}};
}

std::string FileNameOnCommandLine(std::string_view commandLine) {
  if (commandLine.starts_with('"')) commandLine.remove_prefix(1);
  if (commandLine.ends_with('"')) commandLine.remove_suffix(1);
  return std::string(commandLine);
}

}  // namespace app
