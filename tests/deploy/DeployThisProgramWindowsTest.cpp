#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "deploy/DeployDependencies.h"
#include "support/FileSystem.h"
#include "tests/deploy/OwnSystem.h"

namespace {

namespace fs = std::filesystem;

// Without the marker it would deploy, start the fixer, and with it all tests again.
TEST(DeployThisProgram, LooksForTheMarkerFileBesideTheRunningProgram) {
  const tests::OwnSystem system([](const std::string&) {});
  const fs::path marker = modAllPurpose::NativePath(system.ProgramPath() + ".manifest1");
  std::ofstream(marker) << "";
  EXPECT_TRUE(modVantrel_PatchUp::DeployDependencies(
      [](const std::string& text) { FAIL() << "no message: " << text; }));
  EXPECT_FALSE(fs::exists(marker.parent_path() / "Dependencies"));
  fs::remove(marker);
}

}  // namespace
