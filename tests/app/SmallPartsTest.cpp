// SPDX-License-Identifier: GPL-3.0-or-later

// The parts of the form that can be looked at without it.

#include <array>
#include <filesystem>
#include <fstream>

#include <QFontDatabase>
#include <QFontMetrics>
#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "app/DesktopCopy.h"
#include "app/DesktopFolder.h"
#include "app/OpenFileDialog.h"
#include "app/OutputPane.h"
#include "app/Screens.h"
#include "tests/TestTrials.h"
#include "tests/app/ConfigFolder.h"

namespace {

using tests::ConfigFolder;
using tests::TemporaryFolder;

TEST(CommandLine, SeveralArgumentsAreOnePathJoinedByBlanks) {
  const std::array argv = {"vantrel", "/data/left", "foot", "walk.c3d"};
  EXPECT_EQ(app::JoinedArguments(4, argv.data()), "/data/left foot walk.c3d");
}

TEST(CommandLine, WithoutArgumentsIsEmpty) {
  const std::array argv = {"vantrel"};
  EXPECT_EQ(app::JoinedArguments(1, argv.data()), "");
}

TEST(CommandLine, SeveralArgumentsAreSeveralFilesWhereEachIsOneAndTheJoinedPathIsNone) {
  const TemporaryFolder folder;
  const std::string left = (folder / "left").string();
  const std::string walk = (folder / "walk.c3d").string();
  std::ofstream(left).put('x');
  std::ofstream(walk).put('x');
  const std::array argv = {"vantrel", "--curves", left.c_str(), walk.c_str()};
  EXPECT_EQ(app::ReadStartLine(4, argv.data()).Files, std::vector({left, walk}));
  EXPECT_EQ(app::ReadStartLine(4, argv.data()).File, "");
  EXPECT_TRUE(app::ReadStartLine(4, argv.data()).ShowsCurves);
  EXPECT_TRUE(app::ReadStartLine(3, argv.data()).Files.empty()) << "one file is no several";
  EXPECT_EQ(app::ReadStartLine(3, argv.data()).File, left);
}

TEST(CommandLine, APathWithBlanksStaysWholeThoughItsPartsAreFilesToo) {
  const TemporaryFolder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  for (const char* name : {"left", "walk.c3d", "left walk.c3d"}) std::ofstream(name).put('x');
  const std::array argv = {"vantrel", "left", "walk.c3d", "gone.c3d"};
  EXPECT_EQ(app::ReadStartLine(3, argv.data()).File, "left walk.c3d");
  EXPECT_EQ(app::ReadStartLine(4, argv.data()).File, "left walk.c3d gone.c3d");
  EXPECT_TRUE(app::ReadStartLine(4, argv.data()).Files.empty());
  std::filesystem::current_path(before);
}

TEST(CommandLine, CurvesAreAskedForInFrontOfThePathOnly) {
  const std::array asked = {"vantrel", "--curves", "left", "walk.c3d"};
  const app::StartLine line = app::ReadStartLine(4, asked.data());
  EXPECT_TRUE(line.ShowsCurves);
  EXPECT_EQ(line.File, "left walk.c3d");
  const std::array behind = {"vantrel", "walk.c3d", "--curves"};
  EXPECT_FALSE(app::ReadStartLine(3, behind.data()).ShowsCurves);
  EXPECT_EQ(app::ReadStartLine(3, behind.data()).File, "walk.c3d --curves");
}

TEST(CommandLine, APathInDoubleQuotesLosesThem) {
  EXPECT_EQ(app::FileNameOnCommandLine("\"/data/a b.c3d\""), "/data/a b.c3d");
}

TEST(CommandLine, APathWithoutQuotesKeepsItsBlanks) {
  EXPECT_EQ(app::FileNameOnCommandLine(" /data/a  b.c3d "), " /data/a  b.c3d ");
}

TEST(CommandLine, OneDoubleQuoteIsAnEmptyName) { EXPECT_EQ(app::FileNameOnCommandLine("\""), ""); }

TEST(CommandLine, AQuoteAtOneEndGoesAndQuotesInsideStay) {
  EXPECT_EQ(app::FileNameOnCommandLine("\"a\"b.c3d"), "a\"b.c3d");
  EXPECT_EQ(app::FileNameOnCommandLine("a.c3d\""), "a.c3d");
  EXPECT_EQ(app::FileNameOnCommandLine("\"\"a\"\""), "\"a\"");
}

TEST(FormPosition, IsCentredAndAThirdOfTheWayDown) {
  EXPECT_EQ(app::FormPosition({1920, 1080}, {1180, 740}), QPoint(370, 113));
}

TEST(FormPosition, CutsTowardsZeroWhereTheFormIsLargerThanTheScreen) {
  EXPECT_EQ(app::FormPosition({1023, 600}, {1180, 740}), QPoint(-78, -46));
}

class DesktopFolder : public ::testing::Test {
 protected:
  void SystemNames(const std::filesystem::path& folder) { config_.NameDesktop(folder.string()); }
  static std::string WithSeparator(const std::filesystem::path& folder) {
    return (folder / "").string();
  }

  TemporaryFolder folder_;
  ConfigFolder config_{folder_.Path().string()};
};

TEST_F(DesktopFolder, IsTheOneOfTheSystemWithASeparatorAtItsEnd) {
  const auto desktop = folder_ / "Schreibtisch für alle";
  std::filesystem::create_directory(desktop);
  SystemNames(desktop);
  EXPECT_EQ(app::GetDesktopFolder(), WithSeparator(desktop));
}

TEST_F(DesktopFolder, IsEmptyWhereTheNamedFolderIsNotThere) {
  SystemNames(folder_ / "nowhere");
  EXPECT_EQ(app::GetDesktopFolder(), "");
}

TEST_F(DesktopFolder, IsTheOnlyFolderIdThatIsKnown) {
  SystemNames(folder_.Path());
  EXPECT_EQ(app::GetSpecialFolderPath(16), WithSeparator(folder_.Path()));
  EXPECT_EQ(app::GetSpecialFolderPath(5), "");
}

TEST(DesktopCopy, EndsLinesAfterTheirTextWithCarriageReturnAndLineFeed) {
  const TemporaryFolder folder;
  app::DesktopCopy copy;
  copy.Open((folder / "out.txt").string());
  copy.Write("Left  ", true);
  copy.Write("Foot Strike", false);
  copy.Write("", false);
  copy.Close();
  EXPECT_EQ(tests::ReadWholeFile(folder / "out.txt"), "Left  Foot Strike\r\n\r\n");
}

TEST(DesktopCopy, ReplacesAnEarlierOneEvenIfThatIsStillOpen) {
  const TemporaryFolder folder;
  app::DesktopCopy copy;
  copy.Open((folder / "out.txt").string());
  copy.Write("a much longer first report", false);
  copy.Open((folder / "out.txt").string());
  copy.Write("second", false);
  copy.Close();
  EXPECT_EQ(tests::ReadWholeFile(folder / "out.txt"), "second\r\n");
}

TEST(DesktopCopy, WritesNothingWhereNoneIsOpen) {
  const TemporaryFolder folder;
  app::DesktopCopy copy;
  copy.Open((folder / "out.txt").string());
  copy.Write("kept", false);
  copy.Close();
  copy.Write("lost", false);
  copy.Flush();
  copy.Close();
  EXPECT_EQ(tests::ReadWholeFile(folder / "out.txt"), "kept\r\n");
}

TEST(DesktopCopy, InAFolderThatIsNotThereIsError76) {
  const TemporaryFolder folder;
  app::DesktopCopy copy;
  EXPECT_EQ(tests::ErrorNumberOf([&] { copy.Open((folder / "no/out.txt").string()); }), 76);
}

TEST(DesktopCopy, InPlaceOfAFolderIsError75) {
  const TemporaryFolder folder;
  app::DesktopCopy copy;
  EXPECT_EQ(tests::ErrorNumberOf([&] { copy.Open(folder.Path().string()); }), 75);
}

TEST(ChosenFile, IsSplitIntoFolderAndName) {
  const auto result = modApiCommonDialog::ResultForChosenFile("/data/gait lab/walk 03.c3d");
  EXPECT_TRUE(result.DialogOk);
  EXPECT_EQ(result.DialogFileSpec, "/data/gait lab/walk 03.c3d");
  EXPECT_EQ(result.DialogFolder, "/data/gait lab/");
  EXPECT_EQ(result.DialogFileName, "walk 03.c3d");
}

TEST(ChosenFile, EndsAtANulAndLosesTheBlanksAroundIt) {
  using namespace std::string_view_literals;
  const auto result = modApiCommonDialog::ResultForChosenFile(" walk.c3d \0rest"sv);
  EXPECT_EQ(result.DialogFileSpec, "walk.c3d");
  EXPECT_EQ(result.DialogFolder, "");
  EXPECT_EQ(result.DialogFileName, "walk.c3d");
}

TEST(ChosenFile, IsNoneAfterACancelledDialog) {
  const modApiCommonDialog::DialogResult result;
  EXPECT_FALSE(result.DialogOk);
  EXPECT_EQ(result.DialogFileSpec, "none");
  EXPECT_EQ(result.DialogFolder, "");
  EXPECT_EQ(result.DialogFileName, "");
}

TEST(PaneFont, IsCourierNewOrAFaceOfTheSameWidths) {
  const QString family = app::PaneFontFamily();
  EXPECT_TRUE(family == QStringLiteral("Courier New") ||
              family == QStringLiteral("Liberation Mono") || family == QStringLiteral("Cousine"))
      << family.toStdString();
  QFont font(family);
  font.setPixelSize(1000);
  // Courier's characters are 0.6 of the type size wide, each of them.
  EXPECT_NEAR(QFontMetricsF(font).horizontalAdvance(u'i'), 600.0, 1.0);
  EXPECT_NEAR(QFontMetricsF(font).horizontalAdvance(u'W'), 600.0, 1.0);
}

}  // namespace
