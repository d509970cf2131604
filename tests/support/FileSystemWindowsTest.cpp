// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <vector>
#include <windows.h>

#include <gtest/gtest.h>

#include "support/FileSystem.h"
#include "support/WholeFiles.h"
#include "support/WindowsText.h"
#include "tests/DeepFolder.h"
#include "tests/TestTrials.h"

namespace {

namespace fs = std::filesystem;
using modAllPurpose::FileExists;
using modAllPurpose::NativePath;
using modAllPurpose::Utf16Text;
using modAllPurpose::Utf8Path;
using modAllPurpose::WriteFileInOneStep;
using modAllPurpose::WriteNewFile;
using tests::ErrorNumberOf;
using tests::ReadWholeFile;

const auto kContents = std::as_bytes(std::span("text", 4));

class WindowsFiles : public testing::Test {
 protected:
  // The path of `name` in the form that the system takes as it stands.
  std::string PathAsItStands(const std::string& name) const {
    return R"(\\?\)" + Utf8Path((folder_ / name).make_preferred());
  }

  tests::TemporaryFolder folder_;
};

TEST_F(WindowsFiles, AreFoundWrittenAndRemovedUnderAPathAsItStands) {
  const std::string path = PathAsItStands("file");
  EXPECT_FALSE(FileExists(path));
  WriteNewFile(path, kContents);
  EXPECT_TRUE(FileExists(path));
  EXPECT_EQ(ReadWholeFile(folder_ / "file"), "text");
  modAllPurpose::RemoveFile(path);
  EXPECT_FALSE(FileExists(path));
  EXPECT_FALSE(FileExists(PathAsItStands(""))) << "a folder";
}

TEST_F(WindowsFiles, AreReplacedInOneStepUnderAPathAsItStands) {
  const std::string path = PathAsItStands("file");
  WriteFileInOneStep(path, "first");
  WriteFileInOneStep(path, "second");
  EXPECT_EQ(ReadWholeFile(folder_ / "file"), "second");
  fs::remove(folder_ / "file");
  EXPECT_TRUE(fs::is_empty(folder_.Path()));
}

TEST_F(WindowsFiles, HaveOneSpellingWhateverTheirCaseAndSeparators) {
  const std::string path = Utf8Path(folder_.Path());
  const std::string one = modAllPurpose::OneSpelling(path + "\\Gr\xC3\xBC\xC3\x9F.gcd");
  EXPECT_EQ(modAllPurpose::OneSpelling(path + "/x/../gR\xC3\x9C\xC3\x9F.GCD"), one);
  EXPECT_NE(modAllPurpose::OneSpelling(path + "/gr.gcd"), one);
}

TEST_F(WindowsFiles, AreWrittenForOneWhateverTheirCaseAndSeparators) {
  EXPECT_TRUE(modAllPurpose::IsSameSpelling("C:\\A.c3d", "c:/a.C3D"));
  EXPECT_TRUE(modAllPurpose::IsSameSpelling(R"(\\server\share\a.c3d)", R"(\\SERVER\share\A.c3d)"));
  EXPECT_FALSE(modAllPurpose::IsSameSpelling("C:\\a.c3d", "C:\\b.c3d"));
  EXPECT_TRUE(modAllPurpose::IsSameSpelling("C:\\\xFF.c3d", "C:\\\xFF.c3d"));
  EXPECT_FALSE(modAllPurpose::IsSameSpelling("C:\\\xFF.c3d", "C:\\\xFE.c3d"));
}

TEST_F(WindowsFiles, OnAShareHaveASpellingEach) {
  EXPECT_NE(modAllPurpose::OneSpelling(R"(\\server\share\a.gcd)"),
            modAllPurpose::OneSpelling(R"(\\server\share\b.gcd)"));
}

TEST_F(WindowsFiles, ThatAreReadOnlyAreRemoved) {
  const fs::path file = folder_ / "file";
  WriteNewFile(Utf8Path(file), kContents);
  ASSERT_NE(::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY), 0);
  modAllPurpose::RemoveFile(Utf8Path(file));
  EXPECT_TRUE(fs::is_empty(folder_.Path()));
}

TEST_F(WindowsFiles, ThatAnotherHasOpenAreDenied) {
  const fs::path file = folder_ / "file";
  WriteNewFile(Utf8Path(file), kContents);
  const HANDLE open =
      ::CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(open, INVALID_HANDLE_VALUE);
  EXPECT_EQ(ErrorNumberOf([&] { modAllPurpose::RemoveFile(Utf8Path(file)); }), 70);
  EXPECT_EQ(ErrorNumberOf([&] { WriteFileInOneStep(Utf8Path(file), "new"); }), 70);
  ::CloseHandle(open);
  EXPECT_EQ(ReadWholeFile(file), "text");
}

TEST_F(WindowsFiles, ForWhichNoStreamIsLeftAreNotLeftBehindNorTheirDescriptors) {
  std::vector<std::FILE*> streams;
  while (std::FILE* stream = std::fopen("NUL", "rb")) streams.push_back(stream);
  constexpr int kMoreThanDescriptors = 3000;
  int failed = 0;
  for (int k = 0; k < kMoreThanDescriptors; ++k) {
    if (ErrorNumberOf([&] { WriteNewFile(Utf8Path(folder_ / "file"), kContents); }) != 0) ++failed;
  }
  for (std::FILE* stream : streams) std::fclose(stream);
  EXPECT_EQ(failed, kMoreThanDescriptors);
  EXPECT_TRUE(fs::is_empty(folder_.Path()));
  EXPECT_EQ(ErrorNumberOf([&] { WriteNewFile(Utf8Path(folder_ / "file"), kContents); }), 0);
}

TEST(WindowsPaths, ThatAreNoUnicodeAreAnAccessError) {
  EXPECT_EQ(ErrorNumberOf([] { Utf8Path(std::wstring(L"C:\\\xD800.c3d")); }), 75);
  EXPECT_EQ(ErrorNumberOf([] { NativePath("C:\\\xFF.c3d"); }), 75);
  EXPECT_FALSE(FileExists("C:\\\xFF.c3d"));
}

TEST(WindowsPaths, ThatAreWholeStayAsTheyAre) {
  for (const std::string path :
       {"\\\\server\\share\\a.c3d", "\\\\server\\share\\M\xC3\xBCller\\walk.c3d",
        "\\\\?\\C:\\x\\a.c3d", "\\\\?\\UNC\\server\\share\\a.c3d", "C:\\x\\a.c3d"}) {
    EXPECT_EQ(modAllPurpose::WholePath(path), path);
  }
}

TEST(WindowsPaths, BecomeWholeByTheCurrentFolderOfTheirDrive) {
  const tests::TemporaryFolder folder;
  const std::string path = Utf8Path(fs::path(folder.Path()).make_preferred());
  const std::string drive = path.substr(0, 2);
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  EXPECT_EQ(modAllPurpose::WholePath("a.c3d"), path + "\\a.c3d");
  EXPECT_EQ(modAllPurpose::WholePath("x/../a.c3d"), path + "\\a.c3d");
  EXPECT_EQ(modAllPurpose::WholePath(drive + "a.c3d"), path + "\\a.c3d");
  EXPECT_EQ(modAllPurpose::WholePath("\\a.c3d"), drive + "\\a.c3d");
  EXPECT_EQ(modAllPurpose::WholePath(""), "");
  fs::current_path(before);
}

TEST(WindowsPaths, ThatAreLongReachTheSystemWholeAndAsTheyStand) {
  const std::string deep = "C:\\" + std::string(130, 'x') + '\\' + std::string(130, 'y');
  EXPECT_EQ(NativePath(deep), Utf16Text(R"(\\?\)" + deep));
  EXPECT_EQ(NativePath(R"(\\?\)" + deep), Utf16Text(R"(\\?\)" + deep));
  EXPECT_EQ(NativePath(deep + "/x/../a.c3d"), Utf16Text(R"(\\?\)" + deep + R"(\a.c3d)"));
  EXPECT_EQ(NativePath(R"(\\server\)" + deep.substr(3)),
            Utf16Text(R"(\\?\UNC\server\)" + deep.substr(3)));
  const std::string name(250, 'z');
  EXPECT_EQ(NativePath(name),
            Utf16Text(R"(\\?\)" + Utf8Path(fs::current_path().make_preferred()) + '\\' + name));
}

TEST(WindowsPaths, ThatAreShortReachTheSystemAsTheyAreWritten) {
  for (const std::string path : {"", "a.c3d", "x/../a.c3d", "C:a.c3d", "C:\\x/a.c3d",
                                 "\\\\server\\share\\a.c3d", "NUL", "\\\\?\\C:\\x\\a.c3d"}) {
    EXPECT_EQ(NativePath(path), Utf16Text(path));
  }
  EXPECT_EQ(NativePath("\\\\?\\C:\\x/a.c3d"), L"\\\\?\\C:\\x\\a.c3d");
}

TEST_F(WindowsFiles, AreWrittenReplacedAndRemovedBehindALongPath) {
  const tests::DeepFolder deep;
  const std::string path = deep / "file";
  WriteNewFile(path, kContents);
  EXPECT_TRUE(FileExists(path));
  EXPECT_TRUE(modAllPurpose::IsFolder(deep.Path()));
  EXPECT_TRUE(modAllPurpose::LastWritten(path));
  WriteFileInOneStep(path, "second");
  EXPECT_EQ(ReadWholeFile(NativePath(path)), "second");
  EXPECT_TRUE(modAllPurpose::WriteFileWhereFree(deep / "new", "text"));
  EXPECT_FALSE(modAllPurpose::WriteFileWhereFree(deep / "new", "other"));
  EXPECT_TRUE(modAllPurpose::IsSameFile(path, deep / "FILE"));
  EXPECT_EQ(modAllPurpose::OneSpelling(path), modAllPurpose::OneSpelling(deep / "FILE"));
  modAllPurpose::RemoveFile(path);
  EXPECT_FALSE(FileExists(path));
}

TEST(WindowsPaths, HaveTheirOwnNameBehindEitherSeparatorOrTheDrive) {
  EXPECT_EQ(modAllPurpose::OwnName(R"(D:\gait/trials\walk.c3d)"), "walk.c3d");
  EXPECT_EQ(modAllPurpose::OwnName("D:walk.c3d"), "walk.c3d");
  EXPECT_EQ(modAllPurpose::FolderPart("D:walk.c3d"), "D:");
  EXPECT_EQ(modAllPurpose::FolderOf(R"(D:\gait\walk.c3d)"), R"(D:\gait)");
  EXPECT_EQ(modAllPurpose::FolderOf(R"(D:\walk.c3d)"), R"(D:\)");
}

}  // namespace
