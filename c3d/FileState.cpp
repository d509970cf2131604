#include "c3d/FileState.h"

namespace modVantrel {

void CloseC3dFile(FileState& state) noexcept { state.C3dFileNumber.Close(); }

}  // namespace modVantrel
