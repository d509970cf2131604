// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include "console/Start.h"
#include "curves/RunCurves.h"
#include "support/Interruption.h"
#include "support/ProgramArguments.h"
#include "support/StandardStreams.h"

int main(int argc, char* argv[]) {
  modAllPurpose::KeepPlacesOfStandardStreams();
  modAllPurpose::LetInterruptionsWait();
  console::PrepareOutput();
  return curves::RunCurves(modAllPurpose::ProgramArguments(argc, argv), {stdout, stderr});
}
