// SPDX-License-Identifier: GPL-3.0-or-later

// What the program remembers from one run to the next.

#include <fstream>

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include "app/FormLayout.h"
#include "app/Remembered.h"
#include "app/Screens.h"
#include "tests/app/WindowFixture.h"

namespace {

class WindowMemory : public tests::WindowTest {
 protected:
  static void Settle() {
    constexpr int kLateAnswers = 100;  // milliseconds; of the window system
    QTest::qWait(kLateAnswers);
  }

  // What an earlier run has left.
  static void Remember(const QPoint& corner, const QSize& client, bool maximized = false) {
    app::Remembered().SetPlace({corner, client, maximized});
  }

  QSize Room() const {
    return window_.screen()->availableGeometry().size() - (window_.frameSize() - form_.size());
  }
};

TEST_F(WindowMemory, TheFirstStartStandsAsDesigned) {
  Start();
  Settle();
  EXPECT_EQ(form_.size(), app::FormSizeWithin(Room()));
  EXPECT_FALSE(CheckBox()->isChecked());
  EXPECT_EQ(Pane()->SendScintilla(QsciScintilla::SCI_GETZOOM), 0);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "config/vantrel/vantrel.ini"));
}

TEST_F(WindowMemory, SizePlaceZoomAndCheckMarkAreKeptWhenTheWindowCloses) {
  Start();
  Settle();
  ResizeClient(QSize(700, 420));
  window_.move(window_.screen()->availableGeometry().topLeft() + QPoint(31, 17));
  Settle();
  const QPoint corner = window_.pos();
  Choose("mnuZoomIn");
  Tick(true);
  Click("cmdExit");
  const app::Remembered remembered;
  ASSERT_TRUE(remembered.Place());
  EXPECT_EQ(remembered.Place()->Client, QSize(700, 420));
  EXPECT_EQ(remembered.Place()->Corner, corner);
  EXPECT_FALSE(remembered.Place()->Maximized);
  EXPECT_EQ(remembered.Zoom(), 1);
  EXPECT_TRUE(remembered.DesktopCopy());
}

TEST_F(WindowMemory, TheNextStartStandsWhereTheLastOneStood) {
  const QPoint corner = window_.screen()->availableGeometry().topLeft() + QPoint(23, 41);
  Remember(corner, QSize(640, 400));
  app::Remembered().SetZoom(3);
  app::Remembered().SetDesktopCopy(true);
  Start();
  Settle();
  EXPECT_EQ(form_.size(), QSize(640, 400));
  EXPECT_EQ(window_.pos(), corner);
  EXPECT_EQ(Pane()->SendScintilla(QsciScintilla::SCI_GETZOOM), 3);
  EXPECT_TRUE(CheckBox()->isChecked());
}

TEST_F(WindowMemory, APlaceOutsideTodaysScreensFallsBackToTheDesign) {
  for (const QPoint corner : {QPoint(20000, 50), QPoint(-5000, 50), QPoint(50, -900)}) {
    Remember(corner, QSize(640, 400));
    modVantrel::FileState state;
    app::MainWindow window(state);
    window.Load({});
    window.show();
    Settle();
    const QRect room = window.screen()->availableGeometry();
    EXPECT_TRUE(room.contains(window.frameGeometry()));
    EXPECT_EQ(window.Form().size(),
              app::FormSizeWithin(room.size() - (window.frameSize() - window.Form().size())));
  }
}

TEST_F(WindowMemory, ASizeLargerThanTodaysScreenIsCutToIt) {
  Remember(window_.screen()->availableGeometry().topLeft(), QSize(9000, 9000));
  Start();
  Settle();
  EXPECT_TRUE(window_.screen()->availableGeometry().contains(window_.frameGeometry()));
  EXPECT_EQ(form_.size(), app::FormSizeWithin(Room(), QSize(9000, 9000)));
}

TEST_F(WindowMemory, AMaximizedWindowComesBackMaximized) {
  Remember(window_.screen()->availableGeometry().topLeft() + QPoint(23, 41), QSize(640, 400), true);
  Start();
  EXPECT_TRUE(window_.isMaximized());
  window_.close();
  EXPECT_TRUE(app::Remembered().Place()->Maximized);
}

TEST_F(WindowMemory, NonsenseInTheFileIsNotTaken) {
  std::filesystem::create_directories(folder_ / "config/vantrel");
  std::ofstream(folder_ / "config/vantrel/vantrel.ini")
      << "[window]\ncorner=here\nsize=large\n[pane]\nzoom=9999\n[files]\nrecent=%zz\n";
  const app::Remembered remembered;
  EXPECT_FALSE(remembered.Place());
  EXPECT_EQ(remembered.Zoom(), 20);
  EXPECT_LE(remembered.RecentFiles().size(), 1U);
  EXPECT_EQ(remembered.Normals(), "");
}

TEST_F(WindowMemory, PathsAreKeptByteForByte) {
  app::Remembered().AddRecentFile("/data/R&D, 50% \xFC/gr\xC3\xBC\xC3\x9F 1.c3d");
  const app::Remembered remembered;
  ASSERT_EQ(remembered.RecentFiles().size(), 1U);
  EXPECT_EQ(remembered.RecentFiles()[0], "/data/R&D, 50% \xFC/gr\xC3\xBC\xC3\x9F 1.c3d");
  EXPECT_EQ(remembered.LastFolder(), "/data/R&D, 50% \xFC/");
}

TEST_F(WindowMemory, ATrialIsRecentOnceUnderItsLastSpelling) {
  app::Remembered().AddRecentFile("C:\\gait\\M\xC3\xBCller\\A.c3d");
  app::Remembered().AddRecentFile("C:\\gait\\b.c3d");
  app::Remembered().AddRecentFile("c:/gait/m\xC3\x9Cller/a.C3D");
  app::Remembered().AddRecentFile("c:/gait/m\xC3\x9Cller/a.C3D");
  const std::vector<std::string> files = app::Remembered().RecentFiles();
#ifdef _WIN32
  EXPECT_EQ(files, std::vector<std::string>({"c:/gait/m\xC3\x9Cller/a.C3D", "C:\\gait\\b.c3d"}));
#else
  EXPECT_EQ(files.size(), 3U) << "other names are other files here";
#endif
}

TEST_F(WindowMemory, ATrialOfARelativePathIsRecentFromAnyFolder) {
  WriteSampleWalk();
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder_.Path());
  Start(std::string("walk.c3d"));
  std::filesystem::current_path(before);
  ASSERT_EQ(app::Remembered().RecentFiles().size(), 1U);
  EXPECT_EQ(app::Remembered().RecentFiles()[0], (folder_ / "walk.c3d").string());
}

#ifdef _WIN32
TEST_F(WindowMemory, ATrialOfAPathThatTheLibraryDoesNotKnowIsRecentAsItWasOpened) {
  const std::string walk =
      R"(\\?\)" + std::filesystem::path(WriteSampleWalk()).make_preferred().string();
  Start(walk);
  ASSERT_EQ(form_.OpenFileSpec(), walk);
  ASSERT_EQ(app::Remembered().RecentFiles().size(), 1U);
  EXPECT_EQ(app::Remembered().RecentFiles()[0], walk);
  EXPECT_EQ(app::Remembered().LastFolder(), walk.substr(0, walk.size() - 8));
}
#endif

TEST_F(WindowMemory, TheOpenDialogStartsInTheFolderOfTheLastRun) {
  std::filesystem::create_directory(folder_ / "visit 3");
  app::Remembered().AddRecentFile((folder_ / "visit 3/walk.c3d").string());
  Start();
  boxes_.Expect([this](QDialog& dialog) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path().toStdString(),
              (folder_ / "visit 3").generic_string());
    dialog.reject();
  });
  Choose("mnuOpen");
}

TEST_F(WindowMemory, NormalsAreChosenReadAndForgotten) {
  const std::string walk = WriteSampleWalk();
  const auto normals = folder_ / "normals.csv";
  std::ofstream(normals) << tests::ToolOutput({QStringLiteral("norms"), QStringLiteral("--format"),
                                               QStringLiteral("csv"),
                                               QString::fromStdString(walk)});
  Start();
  EXPECT_FALSE(Entry("mnuNoNormals")->isEnabled());
  const QSignalSpy changed(&window_, &app::MainWindow::NormalsChanged);
  const auto choose = [this](const std::filesystem::path& path) {
    boxes_.Expect([path](QDialog& dialog) {
      auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      name->selectAll();
      QApplication::clipboard()->setText(QString::fromStdString(path.string()));
      QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
      QPushButton* open = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
      ASSERT_TRUE(QTest::qWaitFor([open] { return open->isEnabled(); }));
      QTest::mouseClick(open, Qt::LeftButton);
    });
  };
  choose(normals);
  Choose("mnuChooseNormals");
  EXPECT_EQ(window_.Normals(), normals.string());
  EXPECT_EQ(app::Remembered().Normals(), normals.string());
  EXPECT_EQ(changed.size(), 1);
  const auto nonsense = folder_ / "nonsense.csv";
  std::ofstream(nonsense) << "no,normals\n";
  choose(nonsense);
  boxes_.ExpectAndClick(QStringLiteral("OK"));
  ChooseByArrows(Entry("mnuChooseNormals"));
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_TRUE(boxes_.Seen().back().Text.startsWith(QString::fromStdString(nonsense.string())));
  EXPECT_EQ(window_.Normals(), normals.string());
  Choose("mnuNoNormals");
  EXPECT_EQ(window_.Normals(), "");
  EXPECT_EQ(changed.size(), 2);
  EXPECT_FALSE(Entry("mnuNoNormals")->isEnabled());
}

TEST_F(WindowMemory, ACancelledChoiceOfNormalsLeavesThem) {
  app::Remembered().SetNormals("/data/normals.csv");
  Start();
  boxes_.ExpectAndPress(Qt::Key_Escape);
  Choose("mnuChooseNormals");
  EXPECT_EQ(app::Remembered().Normals(), "/data/normals.csv");
  EXPECT_FALSE(form_.IsUnloaded());
}

}  // namespace
