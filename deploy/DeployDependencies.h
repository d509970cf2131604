// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "deploy/Host.h"
#include "deploy/SystemHost.h"

// The program carries the component libraries it needs, and a manifest that names them, as
// resources, so that it runs from any folder without being installed.
namespace modVantrel_PatchUp {

// Makes sure that the manifest lies beside the program and the libraries in the folder
// "Dependencies" there, and answers whether the program may go on. False ends it: a manifest is in
// force from the start of a process only, so a program that had to write a file hands over to a
// temporary copy of itself, the fixer, which puts itself in the program's place and starts it
// again. A file "<program>.exe.manifest1" beside the program switches all of this off.
bool DeployDependencies(deploy::Host& host);

// The same for the running program on its own system, messages shown by `showMessage`. This is what
// the program calls first of all. Outside Windows it answers true and does nothing; a Windows
// program that carries no libraries answers true too, and makes the folder alone.
bool DeployDependencies(const deploy::MessageShower& showMessage);

}  // namespace modVantrel_PatchUp
