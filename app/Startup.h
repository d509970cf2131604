// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "deploy/SystemHost.h"

namespace app {

// The start-up deployment: whether the program may go on.
using Deployment = std::function<bool(const deploy::MessageShower& showMessage)>;

// The program's own one.
bool DeployThisProgram(const deploy::MessageShower& showMessage);

// The whole program: start-up, the window, and its end. Returns the exit status. `deployment` is
// asked once, before there is a window; where it answers false the program ends with status 0 and
// no file was opened.
int RunVantrel(int argc, char** argv, const Deployment& deployment = DeployThisProgram);

}  // namespace app
