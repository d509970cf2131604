// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include "cli/Tool.h"
#include "console/Start.h"
#include "support/Interruption.h"
#include "support/ProgramArguments.h"
#include "support/StandardStreams.h"

int main(int argc, char* argv[]) {
  modAllPurpose::KeepPlacesOfStandardStreams();
  modAllPurpose::LetInterruptionsWait();
  console::AllowManyOpenFiles();
  console::PrepareOutput();
  return cli::RunTool(modAllPurpose::ProgramArguments(argc, argv), {stdout, stderr});
}
