// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include "cli/Start.h"
#include "cli/Tool.h"
#include "support/Interruption.h"

int main(int argc, char* argv[]) {
  modAllPurpose::LetInterruptionsWait();
  cli::PrepareOutput();
  return cli::RunTool(cli::Arguments(argc, argv), {stdout, stderr});
}
