#include <fstream>

#include <gtest/gtest.h>

#include "support/FileSystem.h"
#include "tests/TestTrials.h"

namespace {

using modAllPurpose::FileExists;

TEST(FileExists, IsTrueForAFileOnly) {
  const tests::TemporaryFolder folder;
  std::ofstream(folder / "a file.txt") << "text";
  EXPECT_TRUE(FileExists((folder / "a file.txt").string()));
  EXPECT_FALSE(FileExists(folder.Path().string())) << "a folder";
  EXPECT_FALSE(FileExists((folder / "missing").string()));
  EXPECT_FALSE(FileExists(""));
  EXPECT_FALSE(FileExists((folder / "a file.txt" / "below a file").string()));
}

TEST(FileExists, FindsAFileNamedInUtf8) {
  const tests::TemporaryFolder folder;
  const std::string name = folder.Path().string() + "/M\xC3\xBCller.c3d";
  std::ofstream(modAllPurpose::NativePath(name)) << "text";
  EXPECT_TRUE(FileExists(name));
}

TEST(Utf8Path, IsThePathThatNativePathTook) {
  const std::string path = "folder/M\xC3\xBCller \xE2\x82\xAC.c3d";
  EXPECT_EQ(modAllPurpose::Utf8Path(modAllPurpose::NativePath(path)), path);
  EXPECT_EQ(modAllPurpose::Utf8Path({}), "");
}

}  // namespace
