#include "deploy/DeployDependencies.h"

namespace modVantrel_PatchUp {

// The decision on which systems there is something to deploy. The component libraries are a matter
// of Windows: elsewhere the program's libraries come with the system's packages, it carries none,
// and the folder that it stands in is not its own to write to.
#ifdef _WIN32
#error "the Windows host follows"
#else
bool DeployDependencies(const deploy::MessageShower& /*showMessage*/) { return true; }
#endif

}  // namespace modVantrel_PatchUp
