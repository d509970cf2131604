// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Startup.h"

int main(int argc, char* argv[]) { return app::RunVantrel(argc, argv); }
