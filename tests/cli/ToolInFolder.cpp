// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/ToolInFolder.h"

namespace tests {

ToolInFolder::ToolInFolder() {
  std::filesystem::copy_file(VANTREL_SAMPLE_WALK, folder_ / kSampleWalk);
}

}  // namespace tests
