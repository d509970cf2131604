#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/TestTrials.h"

namespace tests {

// How a run of the tool ended and what it wrote.
struct ToolRun {
  int Status = 0;  // exit status; -1 where the tool did not exit by itself
  std::string Output;
  std::string Errors;
};

// The tool, run in a folder of its own that holds a copy of the sample walk.
class ToolInFolder {
 public:
  ToolInFolder();

  ToolRun Run(const std::vector<std::string>& arguments) const;

  const std::filesystem::path& Path() const { return folder_.Path(); }
  std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }
  std::string Read(const std::string& name) const { return ReadWholeFile(folder_ / name); }

 private:
  TemporaryFolder folder_;
  TemporaryFolder streams_;
};

inline constexpr const char* kSampleWalk = "sample-walk.c3d";

}  // namespace tests
