// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Startup.h"
#include "support/Interruption.h"
#include "support/StandardStreams.h"

int main(int argc, char* argv[]) {
  modAllPurpose::KeepPlacesOfStandardStreams();
  modAllPurpose::LetInterruptionsWait();
  return app::RunVantrel(argc, argv);
}
