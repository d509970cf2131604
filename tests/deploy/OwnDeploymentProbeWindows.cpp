// SPDX-License-Identifier: GPL-3.0-or-later

// A program that does nothing but deploy for itself, as a program does that carries no libraries.
// Ends with status 0 where it may go on, 1 where it may not, and 2 where it has a message to show.
#include <string>

#include "deploy/DeployDependencies.h"

int main() {
  bool hasMessage = false;
  const bool goesOn = modVantrel_PatchUp::DeployDependencies(
      [&](const std::string& /*text*/) { hasMessage = true; });
  if (hasMessage) return 2;
  return goesOn ? 0 : 1;
}
