// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <string>
#include <windows.h>

#include <gtest/gtest.h>

#include "support/FileSystem.h"
#include "tests/TestTrials.h"
#include "tests/deploy/OwnSystem.h"

namespace {

namespace fs = std::filesystem;

class WindowsHost : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return modAllPurpose::Utf8Path(folder_ / name);
  }

  void WriteReadOnly(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
    ::SetFileAttributesW((folder_ / name).c_str(), FILE_ATTRIBUTE_READONLY);
  }

  bool IsReadOnly(const std::string& name) const {
    return (::GetFileAttributesW((folder_ / name).c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
  }

  tests::TemporaryFolder folder_;
  tests::OwnSystem host_{[](const std::string&) {}};
};

// As a program does that was copied from a medium which cannot be written.
TEST_F(WindowsHost, CopiesAReadOnlyProgramToAndFroAndDeletesItsFixer) {
  WriteReadOnly("main.exe", "program");
  host_.Copy(Path("main.exe"), Path("main_Fix.exe"));
  ASSERT_TRUE(IsReadOnly("main_Fix.exe"));
  host_.Copy(Path("main_Fix.exe"), Path("main.exe"));
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "main.exe"), "program");
  host_.RemoveFile(Path("main_Fix.exe"));
  EXPECT_FALSE(fs::exists(folder_ / "main_Fix.exe"));
  host_.RemoveFile(Path("main.exe"));
}

TEST_F(WindowsHost, CopiesOverAReadOnlyFile) {
  std::ofstream(folder_ / "from") << "new";
  WriteReadOnly("to", "old");
  host_.Copy(Path("from"), Path("to"));
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "to"), "new");
  EXPECT_FALSE(IsReadOnly("to"));
}

TEST_F(WindowsHost, KnowsTheLowerCaseOfLettersOutsideAscii) {
  EXPECT_EQ(host_.LowerCase("\xC3\x84RZTE GR\xC3\x9C\xC3\x9F"
                            "E \xCE\xA9.EXE"),
            "\xC3\xA4rzte gr\xC3\xBC\xC3\x9F"
            "e \xCF\x89.exe");
}

}  // namespace
