// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/TestTrials.h"
#include "tests/cli/ToolRun.h"

namespace tests {

// The tool, run in a folder of its own that holds a copy of the sample walk.
class ToolInFolder {
 public:
  ToolInFolder();

  ToolResult Run(const std::vector<std::string>& arguments) const {
    return RunTool(arguments, {}, folder_.Path());
  }

  const std::filesystem::path& Path() const { return folder_.Path(); }
  std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }
  std::string Read(const std::string& name) const { return ReadWholeFile(folder_ / name); }

 private:
  TemporaryFolder folder_;
};

inline constexpr const char* kSampleWalk = "sample-walk.c3d";

}  // namespace tests
