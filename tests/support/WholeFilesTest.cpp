// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/FileInWaiting.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "support/WholeFiles.h"
#include "tests/TestTrials.h"

namespace {

namespace fs = std::filesystem;
using modAllPurpose::FileInWaiting;
using modAllPurpose::RuntimeError;
using modAllPurpose::StepsTogether;
using modAllPurpose::WholeFile;
using modAllPurpose::WriteFileInOneStep;
using modAllPurpose::WriteFilesTogether;
using modAllPurpose::WriteFilesWhereFree;
using modAllPurpose::WriteFileWhereFree;
using tests::ErrorNumberOf;
using tests::kPathFileAccessError;
using tests::ReadWholeFile;

// The line of the error that `work` ends in; empty for none.
std::string ErrorLineOf(const std::function<void()>& work) {
  try {
    work();
    return {};
  } catch (const RuntimeError& error) {
    return RuntimeErrorLine(error);
  }
}

class WholeFiles : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return modAllPurpose::Utf8Path(folder_ / name);
  }
  void Put(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  std::string Read(const std::string& name) const { return ReadWholeFile(folder_ / name); }

  std::ptrdiff_t NamesInFolder() const {
    return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
  }

  tests::TemporaryFolder folder_;
};

TEST_F(WholeFiles, InOneStepMakesAFileOrReplacesIt) {
  WriteFileInOneStep(Path("file"), "first and longer");
  EXPECT_EQ(Read("file"), "first and longer");
  WriteFileInOneStep(Path("file"), "second");
  EXPECT_EQ(Read("file"), "second");
  EXPECT_EQ(NamesInFolder(), 1);
}

TEST_F(WholeFiles, InOneStepLeavesAFolderOfItsName) {
  fs::create_directory(folder_ / "folder");
  EXPECT_EQ(
      ErrorLineOf([&] { WriteFileInOneStep(Path("folder"), "text"); }),
      "Run-time error '75': Path/File access error: " + Path("folder") + " is no regular file");
  EXPECT_TRUE(fs::is_directory(folder_ / "folder"));
  EXPECT_EQ(NamesInFolder(), 1);
}

TEST_F(WholeFiles, AMissingFolderIsNamed) {
  const std::string missing = Path("missing");
  const std::string expected = "Run-time error '76': Path not found: " + missing;
  EXPECT_EQ(ErrorLineOf([&] { WriteFileInOneStep(missing + "/new", "text"); }), expected);
  EXPECT_EQ(ErrorLineOf([&] { (void)WriteFileWhereFree(missing + "/new", "text"); }), expected);
  const std::vector<WholeFile> files = {{Path("a"), "text"}, {missing + "/b", "text"}};
  EXPECT_EQ(ErrorLineOf([&] { (void)WriteFilesWhereFree(files); }), expected);
  EXPECT_EQ(NamesInFolder(), 0) << "what was made before the error is taken away again";
}

TEST_F(WholeFiles, WhereFreeTakesNoOthersName) {
  EXPECT_TRUE(WriteFileWhereFree(Path("file"), "first"));
  EXPECT_FALSE(WriteFileWhereFree(Path("file"), "second"));
  EXPECT_EQ(Read("file"), "first");
  fs::create_directory(folder_ / "folder");
  EXPECT_FALSE(WriteFileWhereFree(Path("folder"), "text"));
  EXPECT_EQ(NamesInFolder(), 2);
}

TEST_F(WholeFiles, ASetOfFreeNamesIsMade) {
  const std::vector<WholeFile> files = {{Path("b"), "of b"}, {Path("a"), ""}};
  EXPECT_EQ(WriteFilesWhereFree(files), "");
  EXPECT_EQ(Read("a"), "");
  EXPECT_EQ(Read("b"), "of b");
  EXPECT_EQ(NamesInFolder(), 2);
}

TEST_F(WholeFiles, ASetWithOneTakenNameLeavesNothingOfItself) {
  Put("b", "old");
  const std::vector<WholeFile> files = {{Path("a"), "new"}, {Path("b"), "new"}, {Path("c"), "new"}};
  EXPECT_EQ(WriteFilesWhereFree(files), Path("b"));
  EXPECT_EQ(Read("b"), "old");
  EXPECT_EQ(NamesInFolder(), 1);
}

TEST_F(WholeFiles, ASetTakesItsNamesInOrderHoweverItIsGiven) {
  Put("b", "old");
  Put("y", "old");
  const std::vector<WholeFile> files = {
      {Path("z"), "new"}, {Path("y"), "new"}, {Path("./b"), "new"}};
  EXPECT_EQ(WriteFilesWhereFree(files), Path("./b"));
}

TEST_F(WholeFiles, ASetIsReplacedInItsOrderWhetherItsFilesAreThereOrNot) {
  Put("b", "old");
  const std::vector<WholeFile> files = {{Path("b"), "new"}, {Path("a"), "new"}};
  std::vector<std::string> replaced;
  WriteFilesTogether(files, {.Replaced = [&](const WholeFile& file) {
                       EXPECT_EQ(ReadWholeFile(file.Path), "new");
                       replaced.push_back(file.Path);
                     }});
  EXPECT_EQ(replaced, (std::vector{Path("b"), Path("a")}));
  EXPECT_EQ(NamesInFolder(), 2);
}

TEST_F(WholeFiles, ASetOfWhichOneCannotBeReplacedIsLeftAsItWas) {
  Put("a", "old");
  fs::create_directory(folder_ / "b");
  const std::vector<WholeFile> files = {{Path("a"), "new"}, {Path("b"), "new"}};
  EXPECT_EQ(ErrorNumberOf([&] { WriteFilesTogether(files); }), kPathFileAccessError);
  EXPECT_EQ(Read("a"), "old");
  EXPECT_EQ(NamesInFolder(), 2);
}

TEST_F(WholeFiles, ASetIsLeftAsItWasWhereTheLastLookAtItFails) {
  Put("a", "old");
  const std::vector<WholeFile> files = {{Path("a"), "new"}, {Path("b"), "new"}};
  const StepsTogether steps{
      .LastLook = [] { throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::DiskFull); }};
  EXPECT_EQ(ErrorNumberOf([&] { WriteFilesTogether(files, steps); }), tests::kDiskFull);
  EXPECT_EQ(Read("a"), "old");
  EXPECT_EQ(NamesInFolder(), 1);
}

TEST_F(WholeFiles, WhatASetHasReplacedIsToldWhereANameIsTakenBehindTheLastLook) {
  Put("a", "old");
  const std::vector<WholeFile> files = {{Path("a"), "new"}, {Path("b"), "new"}};
  std::vector<std::string> replaced;
  const StepsTogether steps{
      .LastLook = [&] { fs::create_directory(folder_ / "b"); },
      .Replaced = [&](const WholeFile& file) { replaced.push_back(file.Path); }};
  EXPECT_EQ(ErrorNumberOf([&] { WriteFilesTogether(files, steps); }), kPathFileAccessError);
  EXPECT_EQ(replaced, std::vector{Path("a")});
  EXPECT_EQ(NamesInFolder(), 2);
}

TEST_F(WholeFiles, OnlyTheFileItselfIsTakenAwayAgain) {
  Put("file", "mine");
  const auto mine = modAllPurpose::IdentityOf(folder_ / "file");
  ASSERT_TRUE(mine);
  WriteFileInOneStep(Path("file"), "of another");
  modAllPurpose::DeleteIfStill(folder_ / "file", *mine);
  EXPECT_EQ(Read("file"), "of another");
  const auto others = modAllPurpose::IdentityOf(folder_ / "file");
  ASSERT_TRUE(others);
  modAllPurpose::DeleteIfStill(folder_ / "file", *others);
  EXPECT_EQ(NamesInFolder(), 0);
}

// With a name of its own, as on a file system that has no files without, and as this one has it.
class FilesInWaiting : public WholeFiles,
                       public testing::WithParamInterface<FileInWaiting::Named> {};

TEST_P(FilesInWaiting, VanishUnlessTheyTakeAPlace) {
  { const FileInWaiting file(folder_.Path(), "text", nullptr, GetParam()); }
  EXPECT_EQ(NamesInFolder(), 0);
}

TEST_P(FilesInWaiting, TakeAFreeNameOnly) {
  {
    FileInWaiting file(folder_.Path(), "first", nullptr, GetParam());
    const auto identity = file.Identity();
    EXPECT_TRUE(file.TakeNameIfFree(folder_ / "file"));
    EXPECT_EQ(modAllPurpose::IdentityOf(folder_ / "file"), identity);
  }
  {
    FileInWaiting file(folder_.Path(), "second", nullptr, GetParam());
    EXPECT_FALSE(file.TakeNameIfFree(folder_ / "file"));
  }
  EXPECT_EQ(Read("file"), "first");
  EXPECT_EQ(NamesInFolder(), 1);
}

TEST_P(FilesInWaiting, TakeThePlaceOfAnOlderFile) {
  Put("file", "old");
  const auto old = modAllPurpose::FindFileToReplace(folder_ / "file");
  ASSERT_TRUE(old);
  FileInWaiting(folder_.Path(), "new", &*old, GetParam()).TakePlaceOf(old->Path);
  EXPECT_EQ(Read("file"), "new");
  EXPECT_EQ(NamesInFolder(), 1);
}

INSTANTIATE_TEST_SUITE_P(Named, FilesInWaiting,
                         testing::Values(FileInWaiting::Named::WhereItMust,
                                         FileInWaiting::Named::Always));

}  // namespace
