// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace app {

// The words that the program was started with, its own name first, in UTF-8 on Windows and as they
// came elsewhere. The toolkit takes them as main's arguments, removes its own options from them and
// refers to them as long as it lives.
class StartWords {
 public:
  StartWords(int argc, char** argv);
  StartWords(const StartWords&) = delete;
  StartWords& operator=(const StartWords&) = delete;
  ~StartWords() = default;

  int& Count() { return count_; }
  char** Words() { return pointers_.data(); }

 private:
  std::vector<std::string> words_;
  std::vector<char*> pointers_;  // to each word, then a null
  int count_;
};

// The command line behind the program's name: the arguments joined by blanks, so that a path with
// blanks that nobody quoted is whole again.
std::string JoinedArguments(int argc, const char* const* argv);

// How the program is started.
struct StartLine {
  bool ShowsCurves = false;  // "--curves" came first
  std::string File;          // the JoinedArguments behind it
  // In place of File several files, as a desktop names those that are dropped on the program.
  std::vector<std::string> Files;
};

// Several arguments are several files only where each of them names one that is there and all of
// them joined do not, so that a path with blanks stays whole.
StartLine ReadStartLine(int argc, const char* const* argv);

// The file that a command line names: without the double quote it starts with and the one it ends
// with, all else as it stands.
std::string FileNameOnCommandLine(std::string_view commandLine);

}  // namespace app
