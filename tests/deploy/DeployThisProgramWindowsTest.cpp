// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <process.h>
#include <string>

#include <gtest/gtest.h>

#include "tests/TestTrials.h"
#include "tests/deploy/FakeHost.h"

namespace {

namespace fs = std::filesystem;

// A copy of a program that deploys for itself, in a folder of its own.
class DeployThisProgram : public testing::Test {
 protected:
  DeployThisProgram() { fs::copy_file(VANTREL_OWN_DEPLOYMENT_PROBE, folder_ / "probe.exe"); }

  static void Write(const fs::path& file) { std::ofstream(file) << "old"; }

  void PutEverythingInPlace() const {
    Write(folder_ / "probe.exe.manifest");
    fs::create_directory(folder_ / "Dependencies");
    for (const std::string& name : tests::LibraryNames()) Write(folder_ / "Dependencies" / name);
  }

  // Runs the program to its end and returns its exit status.
  std::intptr_t Run() const {
    return ::_wspawnl(_P_WAIT, (folder_ / "probe.exe").c_str(), L"probe", nullptr);
  }

  tests::TemporaryFolder folder_;
};

TEST_F(DeployThisProgram, WithEverythingInPlaceDeletesAnOldFixerAndGoesOn) {
  PutEverythingInPlace();
  Write(folder_ / "probe_Fix.exe");
  EXPECT_EQ(Run(), 0);
  EXPECT_FALSE(fs::exists(folder_ / "probe_Fix.exe"));
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "probe.exe.manifest"), "old");
}

TEST_F(DeployThisProgram, WithTheMarkerFileBesideItTouchesNothingAndGoesOn) {
  Write(folder_ / "probe.exe.manifest1");
  Write(folder_ / "probe_Fix.exe");
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(fs::exists(folder_ / "probe_Fix.exe"));
  EXPECT_FALSE(fs::exists(folder_ / "Dependencies"));
}

TEST_F(DeployThisProgram, ThatCarriesNoLibrariesMakesTheFolderAloneAndGoesOn) {
  EXPECT_EQ(Run(), 0);
  EXPECT_TRUE(fs::is_empty(folder_ / "Dependencies"));
  EXPECT_FALSE(fs::exists(folder_ / "probe.exe.manifest"));
  EXPECT_FALSE(fs::exists(folder_ / "probe_Fix.exe"));
}

// Its path has no form in UTF-8, which is an error before the deployment begins.
TEST_F(DeployThisProgram, InAFolderWhoseNameIsNoUnicodeDoesNothingAndGoesOn) {
  const fs::path home = folder_.Path() / L"a\xD800z";
  std::error_code failure;
  if (!fs::create_directory(home, failure)) GTEST_SKIP() << "this system has no such names";
  fs::copy_file(folder_ / "probe.exe", home / "probe.exe");
  EXPECT_EQ(::_wspawnl(_P_WAIT, (home / "probe.exe").c_str(), L"probe", nullptr), 0);
  EXPECT_FALSE(fs::exists(home / "Dependencies"));
}

}  // namespace
