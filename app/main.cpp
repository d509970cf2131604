// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Startup.h"
#include "support/Interruption.h"

int main(int argc, char* argv[]) {
  modAllPurpose::LetInterruptionsWait();
  return app::RunVantrel(argc, argv);
}
