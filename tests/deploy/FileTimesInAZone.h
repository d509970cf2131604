// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "deploy/FileTimes.h"
#include "support/FileSystem.h"
#include "tests/TestTrials.h"

namespace tests {

// A new file in a time zone that is far from universal time and has a summer time. The system
// learns of it as the program starts, so this program is started with it: VANTREL_TEST_ZONE.
class FileTimesInAZone : public testing::Test {
 protected:
  void SetUp() override {
    const char* zone = std::getenv("TZ");
    ASSERT_STREQ(zone == nullptr ? "" : zone, VANTREL_TEST_ZONE) << "set TZ to this";
    std::ofstream(file_) << "text";
  }

  modWindowsFileInfo::FileTimes Read() const {
    return modWindowsFileInfo::ReadFileTimes(modAllPurpose::Utf8Path(file_));
  }
  void Set(const modWindowsFileInfo::FileTimes& times) const {
    modWindowsFileInfo::SetFileTimes(modAllPurpose::Utf8Path(file_), times);
  }

  TemporaryFolder folder_;
  const std::filesystem::path file_ = folder_ / "file";
};

}  // namespace tests
