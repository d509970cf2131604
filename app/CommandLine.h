// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace app {

// The command line behind the program's name: the arguments joined by blanks, so that a path with
// blanks that nobody quoted is whole again.
std::string JoinedArguments(int argc, const char* const* argv);

// How the program is started.
struct StartLine {
  bool ShowsCurves = false;  // "--curves" came first
  std::string File;          // the JoinedArguments behind it
};

StartLine ReadStartLine(int argc, const char* const* argv);

// The file that a command line names: without the double quote it starts with and the one it ends
// with, all else as it stands.
std::string FileNameOnCommandLine(std::string_view commandLine);

}  // namespace app
