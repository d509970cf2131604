// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>

#include <gtest/gtest.h>

#include "deploy/DeployDependencies.h"

namespace {

namespace fs = std::filesystem;

TEST(DeployThisProgram, CarriesNoLibrariesOnThisSystemSoItGoesOnAndWritesNothing) {
  EXPECT_TRUE(modVantrel_PatchUp::DeployDependencies(
      [](const std::string& text) { FAIL() << "no message: " << text; }));
  const fs::path folder = fs::read_symlink("/proc/self/exe").parent_path();
  EXPECT_FALSE(fs::exists(folder / "Dependencies"));
  EXPECT_FALSE(fs::exists(folder / "deploy_tests.exe.manifest"));
  EXPECT_FALSE(fs::exists(folder / "deploy_tests_Fix.exe"));
}

}  // namespace
