// SPDX-License-Identifier: GPL-3.0-or-later

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "deploy/Folders.h"
#include "deploy/ResourceFile.h"
#include "tests/TestTrials.h"
#include "tests/deploy/FakeHost.h"

namespace {

using modResourceFile::ExtractResourceToFile;
using modResourceFile::Overwrite;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::ErrorNumberOf;
using tests::FakeHost;

class ExtractingAResource : public testing::Test {
 protected:
  ExtractingAResource() { host_.Resources["Texts/myfile.txt"] = "text"; }

  FakeHost host_;
};

TEST_F(ExtractingAResource, WritesItUnderItsNameWithBlanksThoughItIsFoundWithout) {
  ExtractResourceToFile(host_, R"(C:\Gait\)", "my file.txt", "Texts", Overwrite::No);
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\my file.txt)"), "text");
}

TEST_F(ExtractingAResource, AddsTheSeparatorThatAFolderLacks) {
  ExtractResourceToFile(host_, R"(C:\Gait)", "myfile.txt", "Texts", Overwrite::No);
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\myfile.txt)"), "text");
}

TEST_F(ExtractingAResource, KeepsAFileThatIsThere) {
  host_.Files[R"(C:\Gait\myfile.txt)"] = "old";
  ExtractResourceToFile(host_, R"(C:\Gait)", "myfile.txt", "Texts", Overwrite::No);
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\myfile.txt)"), "old");
  EXPECT_THAT(host_.Steps, IsEmpty());
}

TEST_F(ExtractingAResource, KeepsAFileThatIsThereThoughThereIsNoSuchResource) {
  host_.Files[R"(C:\Gait\other.txt)"] = "old";
  ExtractResourceToFile(host_, R"(C:\Gait)", "other.txt", "Texts", Overwrite::No);
  EXPECT_THAT(host_.Steps, IsEmpty());
}

TEST_F(ExtractingAResource, DeletesTheFileItOverwrites) {
  host_.Files[R"(C:\Gait\myfile.txt)"] = "old";
  ExtractResourceToFile(host_, R"(C:\Gait)", "myfile.txt", "Texts", Overwrite::Yes);
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\myfile.txt)"), "text");
  EXPECT_THAT(host_.Steps,
              ElementsAre(R"(delete C:\Gait\myfile.txt)", R"(write C:\Gait\myfile.txt)"));
}

TEST_F(ExtractingAResource, ThatTheProgramDoesNotCarryFailsAndKeepsTheOldFile) {
  host_.Files[R"(C:\Gait\other.txt)"] = "old";
  EXPECT_EQ(ErrorNumberOf([&] {
              ExtractResourceToFile(host_, R"(C:\Gait)", "other.txt", "Texts", Overwrite::Yes);
            }),
            53);
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\other.txt)"), "old");
}

TEST_F(ExtractingAResource, OfAnotherTypeFails) {
  EXPECT_EQ(ErrorNumberOf([&] {
              ExtractResourceToFile(host_, R"(C:\Gait)", "myfile.txt", "Sounds", Overwrite::No);
            }),
            53);
}

TEST_F(ExtractingAResource, FailsWhereTheOldFileCannotBeDeleted) {
  host_.Files[R"(C:\Gait\myfile.txt)"] = "old";
  host_.Undeletable = {R"(C:\Gait\myfile.txt)"};
  EXPECT_EQ(ErrorNumberOf([&] {
              ExtractResourceToFile(host_, R"(C:\Gait)", "myfile.txt", "Texts", Overwrite::Yes);
            }),
            75);
  EXPECT_EQ(host_.Files.at(R"(C:\Gait\myfile.txt)"), "old");
}

TEST_F(ExtractingAResource, ThatFailsDeletesNothing) {
  host_.Unwritable = {R"(C:\Gait\myfile.txt)"};
  EXPECT_EQ(ErrorNumberOf([&] {
              ExtractResourceToFile(host_, R"(C:\Gait)", "myfile.txt", "Texts", Overwrite::No);
            }),
            75);
  EXPECT_THAT(host_.Steps, ElementsAre(R"(write C:\Gait\myfile.txt)"));
}

TEST_F(ExtractingAResource, FailsWhereAFolderHasItsNameWhetherItOverwritesOrNot) {
  host_.Folders.insert(R"(C:\Gait\myfile.txt)");
  for (const Overwrite overwrite : {Overwrite::No, Overwrite::Yes}) {
    EXPECT_EQ(ErrorNumberOf([&] {
                ExtractResourceToFile(host_, R"(C:\Gait)", "myfile.txt", "Texts", overwrite);
              }),
              75);
  }
  EXPECT_THAT(host_.Steps, Each(R"(write C:\Gait\myfile.txt)"));
}

TEST(FolderExists, IsTrueForAFolderWithOrWithoutItsSeparator) {
  FakeHost host;
  host.Files[R"(C:\Gait\file)"] = "";
  EXPECT_TRUE(modAllPurposeFolders::FolderExists(host, R"(C:\Gait)"));
  EXPECT_TRUE(modAllPurposeFolders::FolderExists(host, R"(C:\Gait\)"));
  EXPECT_FALSE(modAllPurposeFolders::FolderExists(host, R"(C:\Gait\file)")) << "a file";
  EXPECT_FALSE(modAllPurposeFolders::FolderExists(host, R"(C:\Nowhere)"));
  EXPECT_FALSE(modAllPurposeFolders::FolderExists(host, ""));
}

TEST(DeleteIgnoringErrors, DeletesAFileAndPassesOverOneThatIsNotThere) {
  FakeHost host;
  host.Files[R"(C:\Gait\file)"] = "";
  modAllPurposeFolders::DeleteIgnoringErrors(host, R"(C:\Gait\file)");
  EXPECT_THAT(host.Files, IsEmpty());
  EXPECT_EQ(
      ErrorNumberOf([&] { modAllPurposeFolders::DeleteIgnoringErrors(host, R"(C:\Gait\file)"); }),
      0);
}

}  // namespace
