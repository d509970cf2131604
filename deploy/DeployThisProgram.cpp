// SPDX-License-Identifier: GPL-3.0-or-later

#include "deploy/DeployDependencies.h"
#ifdef _WIN32
#include "deploy/WindowsHost.h"
#endif

namespace modVantrel_PatchUp {

// The decision on which systems there is something to deploy. The component libraries are a matter
// of Windows: elsewhere the program's libraries come with the system's packages, it carries none,
// and the folder that it stands in is not its own to write to.
#ifdef _WIN32
bool DeployDependencies(const deploy::MessageShower& showMessage) {
  deploy::WindowsHost host(showMessage);
  return DeployDependencies(host);
}
#else
bool DeployDependencies(const deploy::MessageShower& /*showMessage*/) { return true; }
#endif

}  // namespace modVantrel_PatchUp
