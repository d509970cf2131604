// SPDX-License-Identifier: GPL-3.0-or-later

// Saves a picture of the window, for machines without a display and for the manual.

#include <iostream>
#include <string>
#include <vector>

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPalette>
#include <QPushButton>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>

#include "app/CurvesWindow.h"
#include "app/FormLayout.h"
#include "app/MainWindow.h"
#include "app/QtText.h"
#include "app/frmVantrel.h"
#include "c3d/FileState.h"
#include "pages/PageKinds.h"

namespace {

constexpr const char* kUsage =
    "usage: vantrel-picture [--dark] FILE.c3d PICTURE.png [LABEL]\n"
    "Opens FILE.c3d, shows the normalised curves of LABEL (without it, the single-value measures)\n"
    "and saves a picture of the window.\n"
    "       vantrel-picture [--dark] --curves PAGE FILE.c3d... PICTURE.png\n"
    "Saves a picture of the window of curves with that page (kinematics, kinetics ...).\n"
    "       vantrel-picture --check-display\n"
    "Ends with 0 where there is a display that shows windows.\n";

QPalette DarkPalette() {
  QPalette palette(QColor(0x2b, 0x2b, 0x2e), QColor(0x23, 0x23, 0x26));
  palette.setColor(QPalette::Base, QColor(0x1b, 0x1b, 0x1d));
  palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
  return palette;
}

// A message box would wait for ever: its text goes to standard error and it is closed.
void AnswerMessageBoxes(QTimer& timer, bool& met) {
  QObject::connect(&timer, &QTimer::timeout, [&met] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    std::cerr << "vantrel-picture: " << box->text().toStdString() << '\n';
    met = true;
    box->accept();
  });
  constexpr int kInterval = 20;  // milliseconds
  timer.start(kInterval);
}

bool SavePicture(const std::vector<std::string>& arguments) {
  QTimer timer;
  bool refused = false;
  AnswerMessageBoxes(timer, refused);
  modVantrel::FileState state;
  app::MainWindow window(state);
  app::frmVantrel& form = window.Form();
  window.Load(arguments[0]);
  if (refused) return false;
  window.show();
  window.resize(window.size() + app::kDesignSize - form.size());  // whatever screen there is
  const bool withLabel = arguments.size() > 2;
  if (withLabel) {
    form.findChild<QLineEdit*>(QStringLiteral("txtPointLabel"))
        ->setText(app::ToQString(arguments[2]));
  }
  form.findChild<QPushButton*>(withLabel ? QStringLiteral("cmdShowNormalized")
                                         : QStringLiteral("cmdShowSingleValueStrikeOffMeasures"))
      ->click();
  if (form.IsUnloaded()) return false;
  while (window.IsChecking()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  QApplication::processEvents();
  return window.grab().save(app::ToQString(arguments[1]), "PNG");
}

// A page of the trials: the arguments are its name, the files and the picture.
bool SaveCurves(const std::vector<std::string>& arguments) {
  const pages::PageInfo* page = pages::FindPage(arguments[0]);
  if (page == nullptr) return false;
  QTimer timer;
  bool refused = false;
  AnswerMessageBoxes(timer, refused);
  app::CurvesWindow window;
  window.AddTrials({arguments.begin() + 1, arguments.end() - 1});
  window.ShowPage(page->Kind);
  while (window.IsBusy()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  QApplication::processEvents();
  return !refused && window.grab().save(app::ToQString(arguments.back()), "PNG");
}

bool Save(const std::vector<std::string>& arguments) {
  constexpr std::size_t kLeastForCurves = 4;
  if (arguments[0] != "--curves") return arguments.size() <= 3 && SavePicture(arguments);
  return arguments.size() >= kLeastForCurves &&
         SaveCurves({arguments.begin() + 1, arguments.end()});
}

}  // namespace

int main(int argc, char* argv[]) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  const bool checkDisplay = arguments == std::vector<std::string>{"--check-display"};
  if (!checkDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  // The picture is that of a first start, whatever the user's window looks like.
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
  // Without a display that answers the toolkit ends the program here.
  const QApplication application(argc, argv);
  if (checkDisplay) return 0;
  if (!arguments.empty() && arguments[0] == "--dark") {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(DarkPalette());
    arguments.erase(arguments.begin());
  }
  if (arguments.size() < 2) {
    std::cerr << kUsage;
    return 2;
  }
  if (Save(arguments)) return 0;
  std::cerr << "vantrel-picture: no picture was saved\n";
  return 1;
}
