// SPDX-License-Identifier: GPL-3.0-or-later

// Symbolic links to trials and other files, which Windows lets few users make.

#include <filesystem>

#include "tests/app/CurvesFixture.h"
#include "tests/app/SaveDialog.h"
#include "tests/app/WindowFixture.h"

namespace {

using CurvesLinks = tests::CurvesTest;

class WindowSaveLinks : public tests::WindowTest {
 protected:
  void ExpectAndSave(const std::filesystem::path& path) {
    boxes_.Expect([path](QDialog& dialog) { tests::SaveAs(dialog, path); });
  }
};

TEST_F(CurvesLinks, ALinkToAFileCountsAsTheFile) {
  Start();
  const std::string path = ThreeTrials()[0];
  std::filesystem::create_symlink(path, folder_ / "link.c3d");
  DropAll({path, (folder_ / "link.c3d").string()});
  EXPECT_EQ(List()->topLevelItemCount(), 1);
}

TEST_F(WindowSaveLinks, ATrialIsNotReplacedThroughALink) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  const std::string before = tests::ReadWholeFile(walk);
  std::filesystem::create_symlink(walk, folder_ / "link.txt");
  ExpectAndSave(folder_ / "link.txt");
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  boxes_.ExpectAndPress(Qt::Key_Escape);
  Choose("mnuSaveReport");
  EXPECT_EQ(boxes_.Seen().back().Text.toStdString(),
            "The file '" + (folder_ / "link.txt").string() + "' is a C3D file and stays as it is.");
  EXPECT_EQ(tests::ReadWholeFile(walk), before);
}

TEST_F(WindowSaveLinks, AFileThatCannotBeWrittenIsToldAndTheProgramGoesOn) {
  Start(WriteSampleWalk());
  std::filesystem::create_directory(folder_ / "taken.txt");
  std::filesystem::create_symlink(folder_ / "taken.txt", folder_ / "link.txt");
  std::filesystem::create_symlink("/nowhere/at/all", folder_ / "dangling.txt");
  ExpectAndSave(folder_ / "dangling.txt");
  boxes_.ExpectAndClick(QStringLiteral("Replace"));
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  boxes_.ExpectAndPress(Qt::Key_Escape);
  Choose("mnuSaveReport");
  EXPECT_TRUE(boxes_.Seen().back().Text.startsWith(
      QStringLiteral("The file could not be written.  Path/File access error\n")))
      << boxes_.Seen().back().Text.toStdString();
  EXPECT_FALSE(form_.IsUnloaded());
}

}  // namespace
