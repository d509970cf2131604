// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Startup.h"

#include <string>

#include <QApplication>
#include <QIcon>
#include <QString>

#include "app/CommandLine.h"
#include "app/DesktopColours.h"
#include "app/MainWindow.h"
#include "app/MessageBoxes.h"
#include "app/frmVantrel.h"
#include "c3d/FileState.h"
#include "deploy/DeployDependencies.h"

namespace app {

namespace {

// The icon of the desktop's theme, or the one that the program carries.
QIcon ProgramIcon() {
  QIcon carried;
  for (const int size : {16, 32, 48, 64, 128, 256}) {
    carried.addFile(QStringLiteral(":/icons/%1x%1/vantrel.png").arg(size));
  }
  return QIcon::fromTheme(QStringLiteral("vantrel"), carried);
}

// Whether this process may go on to show the form.
bool Form_Initialize(const Deployment& deployment) {
  return deployment([](const std::string& text) { ShowMessage(nullptr, text); });
}

}  // namespace

bool DeployThisProgram(const deploy::MessageShower& showMessage) {
  return modVantrel_PatchUp::DeployDependencies(showMessage);
}

int RunVantrel(int argc, char** argv, const Deployment& deployment) {
  StartWords words(argc, argv);
  AskForDarkColours();
  QApplication application(words.Count(), words.Words());
  QApplication::setApplicationName(QStringLiteral("vantrel"));
  QApplication::setDesktopFileName(QStringLiteral("vantrel"));
  QApplication::setWindowIcon(ProgramIcon());
  FollowDesktopColours();
  // The toolkit has taken its own options off the command line; the rest names files.
  const StartLine start = ReadStartLine(words.Count(), words.Words());
  if (!Form_Initialize(deployment)) return 0;

  modVantrel::FileState state;
  MainWindow window(state);
  window.Load(start.File);
  if (window.Form().IsUnloaded()) return window.Form().ExitStatus();
  QObject::connect(&window.Form(), &frmVantrel::Unloaded, &QApplication::exit);
  window.show();
  if (!start.Files.empty()) emit window.Form().FilesDropped(start.Files);
  if (start.ShowsCurves) emit window.CurvesAsked(pages::PageKind::Kinematics);
  return QApplication::exec();
}

}  // namespace app
