// SPDX-License-Identifier: GPL-3.0-or-later

// The desktop copy on a full disk, which this system has a device for.

#include "app/DesktopCopy.h"
#include "tests/app/FormFixture.h"

namespace {

using FormOnAFullDisk = tests::FormTest;

TEST(DesktopCopy, OnAFullDiskIsError61) {
  app::DesktopCopy copy;
  copy.Open("/dev/full");
  copy.Write("does not fit", false);
  EXPECT_EQ(tests::ErrorNumberOf([&] { copy.Close(); }), 61);
}

TEST_F(FormOnAFullDisk, EndsWithError61AndTheReportInThePane) {
  Start(WriteSampleWalk());
  std::filesystem::create_symlink("/dev/full", DesktopFile());
  Tick(true);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  Click("cmdShowAllGroups");
  EXPECT_TRUE(PaneText().starts_with("POINT\n"));
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_EQ(boxes_.Seen()[0].Text, QStringLiteral("Run-time error '61':\n\nDisk full"));
  EXPECT_TRUE(form_.IsUnloaded());
  EXPECT_EQ(form_.ExitStatus(), 1);
}

}  // namespace
