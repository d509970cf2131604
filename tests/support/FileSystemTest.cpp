// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>

#include <gtest/gtest.h>

#include "support/FileSystem.h"
#include "tests/TestTrials.h"

namespace {

namespace fs = std::filesystem;
using modAllPurpose::FileExists;
using modAllPurpose::OneSpelling;
using modAllPurpose::RemoveFile;
using modAllPurpose::WriteNewFile;
using tests::ErrorNumberOf;

const auto kText = std::as_bytes(std::span("text", 4));

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

class WritingFiles : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return modAllPurpose::Utf8Path(folder_ / name);
  }

  void Write(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
  }

  std::string Read(const std::string& name) const { return tests::ReadWholeFile(folder_ / name); }

  std::ptrdiff_t FilesInFolder() const {
    return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
  }

  tests::TemporaryFolder folder_;
};

TEST_F(WritingFiles, ANewFileHoldsEveryByte) {
  std::string content;
  for (int k = 0; k < 256; ++k) content += static_cast<char>(k);
  WriteNewFile(Path("new"), std::as_bytes(std::span(content)));
  EXPECT_EQ(Read("new"), content);
}

TEST_F(WritingFiles, ANewFileMayBeEmpty) {
  WriteNewFile(Path("new"), {});
  EXPECT_TRUE(FileExists(Path("new")));
  EXPECT_EQ(Read("new"), "");
}

TEST_F(WritingFiles, ANewFileTakesNoOthersPlace) {
  Write("file", "old");
  fs::create_directory(folder_ / "folder");
  for (const std::string name : {"file", "folder"}) {
    EXPECT_EQ(ErrorNumberOf([&] { WriteNewFile(Path(name), kText); }), 75) << name;
  }
  EXPECT_EQ(Read("file"), "old");
  EXPECT_TRUE(fs::is_directory(folder_ / "folder"));
}

TEST_F(WritingFiles, ANewFileInAMissingFolderIsPathNotFound) {
  EXPECT_EQ(ErrorNumberOf([&] { WriteNewFile(Path("missing/new"), kText); }), 76);
  EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(WritingFiles, AFileIsRemoved) {
  Write("file", "text");
  RemoveFile(Path("file"));
  EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(WritingFiles, RemovingWhatIsNotThereIsFileNotFound) {
  EXPECT_EQ(ErrorNumberOf([&] { RemoveFile(Path("missing")); }), 53);
}

TEST_F(WritingFiles, AnEmptyFolderIsNotRemovedAsAFile) {
  fs::create_directory(folder_ / "folder");
  EXPECT_EQ(ErrorNumberOf([&] { RemoveFile(Path("folder")); }), 75);
  EXPECT_TRUE(fs::is_directory(folder_ / "folder"));
}

TEST_F(WritingFiles, OneFileHasOneSpelling) {
  Write("file", "text");
  fs::create_directory(folder_ / "folder");
  EXPECT_EQ(OneSpelling(Path("folder/../file")), OneSpelling(Path("file")));
  EXPECT_EQ(OneSpelling(Path("./missing")), OneSpelling(Path("missing")));
  EXPECT_NE(OneSpelling(Path("missing")), OneSpelling(Path("file")));
}

TEST_F(WritingFiles, ANameIsTakenByWhateverHasIt) {
  Write("file", "text");
  fs::create_directory(folder_ / "folder");
  EXPECT_TRUE(modAllPurpose::IsNameTaken(Path("file")));
  EXPECT_TRUE(modAllPurpose::IsNameTaken(Path("folder")));
  EXPECT_FALSE(modAllPurpose::IsNameTaken(Path("missing")));
  EXPECT_FALSE(modAllPurpose::IsNameTaken(Path("missing/file")));
}

TEST_F(WritingFiles, AFileIsRegularAndNoFolder) {
  Write("file", "text");
  EXPECT_TRUE(modAllPurpose::IsRegularFile(Path("file")));
  EXPECT_FALSE(modAllPurpose::IsRegularFile(modAllPurpose::Utf8Path(folder_.Path())));
  EXPECT_FALSE(modAllPurpose::IsRegularFile(Path("missing")));
  EXPECT_FALSE(modAllPurpose::IsFolder(Path("file")));
  EXPECT_TRUE(modAllPurpose::IsFolder(modAllPurpose::Utf8Path(folder_.Path())));
  EXPECT_FALSE(modAllPurpose::IsFolder(Path("missing")));
}

TEST_F(WritingFiles, AFileIsTheSameUnderASecondName) {
  Write("file", "text");
  Write("other", "text");
  fs::create_hard_link(folder_ / "file", folder_ / "second");
  EXPECT_TRUE(modAllPurpose::IsSameFile(Path("file"), Path("second")));
  EXPECT_FALSE(modAllPurpose::IsSameFile(Path("file"), Path("other")));
  EXPECT_FALSE(modAllPurpose::IsSameFile(Path("missing"), Path("missing")));
}

TEST_F(WritingFiles, AFileKnowsWhenItWasLastWritten) {
  Write("file", "text");
  const std::chrono::sys_seconds day = std::chrono::sys_days(std::chrono::year(2026) / 2 / 28);
  fs::last_write_time(folder_ / "file", std::chrono::file_clock::from_sys(day));
  const auto written = modAllPurpose::LastWritten(Path("file"));
  ASSERT_TRUE(written);
  EXPECT_EQ(*written, day);
  EXPECT_FALSE(modAllPurpose::LastWritten(Path("missing")));
}

TEST(FolderOf, IsThePathInFrontOfTheOwnName) {
  EXPECT_EQ(modAllPurpose::OwnName("/gait/trials/walk.c3d"), "walk.c3d");
  EXPECT_EQ(modAllPurpose::FolderPart("/gait/trials/walk.c3d"), "/gait/trials/");
  EXPECT_EQ(modAllPurpose::FolderOf("/gait/trials/walk.c3d"), "/gait/trials");
  EXPECT_EQ(modAllPurpose::FolderOf("/walk.c3d"), "/");
  EXPECT_EQ(modAllPurpose::OwnName("walk.c3d"), "walk.c3d");
  EXPECT_EQ(modAllPurpose::FolderPart("walk.c3d"), "");
  EXPECT_EQ(modAllPurpose::FolderOf("walk.c3d"), ".");
}

}  // namespace
