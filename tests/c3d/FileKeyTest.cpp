// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "c3d/FileKey.h"
#include "sample/SampleWalk.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::BeginsLikeC3dFile;

class FileKey : public ::testing::Test {
 protected:
  std::string Given(const std::string& bytes) {
    const std::filesystem::path path = folder_ / "file";
    std::ofstream(path, std::ios::binary) << bytes;
    return path.string();
  }

  tests::TemporaryFolder folder_;
};

TEST_F(FileKey, ATrialBeginsLikeOne) {
  sample::SampleWalk().Build().WriteTo(folder_ / "walk.c3d");
  EXPECT_TRUE(BeginsLikeC3dFile((folder_ / "walk.c3d").string()));
  EXPECT_TRUE(BeginsLikeC3dFile(Given("\x02P"))) << "also where nothing else is left of it";
}

TEST_F(FileKey, OtherFilesDoNot) {
  for (const char* beginning : {"", "P", "xyz", "#!DST-0.1 GCD", "%QDF"}) {
    EXPECT_FALSE(BeginsLikeC3dFile(Given(beginning))) << beginning;
  }
}

TEST_F(FileKey, AnotherKindOfFileWithTheSameSecondByteDoesNot) {
  EXPECT_FALSE(BeginsLikeC3dFile(Given("%PDF-1.4\n")));
  EXPECT_FALSE(BeginsLikeC3dFile(Given("\x89PNG\r\n")));
  EXPECT_TRUE(BeginsLikeC3dFile(Given("%PDD"))) << "a trial whose parameters begin in block 37";
}
TEST_F(FileKey, OnlyAFileThatBeginsLikeOneIsATrial) {
  sample::SampleWalk().Build().WriteTo(folder_ / "walk.c3d");
  EXPECT_TRUE(modVantrel::IsC3dFile((folder_ / "walk.c3d").string()));
  EXPECT_FALSE(modVantrel::IsC3dFile(Given("%PDF-1.4\n")));
}

// Neither of these can be read, and it is no error to ask.
TEST_F(FileKey, WhatIsNoRegularFileIsNoTrial) {
  EXPECT_FALSE(modVantrel::IsC3dFile(folder_.Path().string()));
  EXPECT_FALSE(modVantrel::IsC3dFile((folder_ / "missing.c3d").string()));
}

}  // namespace
