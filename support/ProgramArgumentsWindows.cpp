// SPDX-License-Identifier: GPL-3.0-or-later

#include <windows.h>

#include "support/ProgramArguments.h"
#include "support/WindowsText.h"

namespace modAllPurpose {

std::vector<std::string> ProgramArguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int k = 1; k < count; ++k) arguments.push_back(Utf8Text(words[k]));
  ::LocalFree(words);
  return arguments;
}

}  // namespace modAllPurpose
