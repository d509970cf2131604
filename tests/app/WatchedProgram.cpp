// SPDX-License-Identifier: GPL-3.0-or-later

// The whole program with a user at its side, for tests that need a process of its own: clicks the
// buttons that VANTREL_TEST_CLICKS names, answers every message box with Enter after writing it to
// standard output, and closes the window at last.

#include <iostream>
#include <utility>
#ifdef _WIN32
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#endif

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "app/DarkOutline.h"
#include "app/OutputPane.h"
#include "app/Startup.h"
#include "tests/ToolkitVariables.h"

namespace {

void Report(const char* what, const QString& text) {
  std::cout << what << ": " << QString(text).replace(u'\n', u'|').toStdString() << std::endl;
}

app::OutputPane* Pane() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* pane = window->findChild<app::OutputPane*>()) return pane;
  }
  return nullptr;
}

void AnswerBox(QMessageBox& box) {
  if (app::OutputPane* pane = Pane()) {
    Report("pane", QString::fromStdString(pane->Text()));
    Report("window",
           pane->window()->isVisible() ? QStringLiteral("shown") : QStringLiteral("hidden"));
  }
  Report("title", box.windowTitle());
  Report("text", box.text());
  QTest::keyClick(&box, Qt::Key_Return);
}

void ActAsUser() {
  static QStringList clicks =
      qEnvironmentVariable("VANTREL_TEST_CLICKS").split(u' ', Qt::SkipEmptyParts);
  if (QWidget* modal = QApplication::activeModalWidget()) {
    if (auto* box = qobject_cast<QMessageBox*>(modal)) AnswerBox(*box);
    return;
  }
  static QPushButton* pressed = nullptr;
  if (pressed != nullptr && pressed->isDown()) return;
  app::OutputPane* pane = Pane();
  if (pane == nullptr || !pane->window()->isVisible()) return;
  // A person sees the window before acting: what was posted as it came up is served by then.
  static bool isSeen = false;
  if (!std::exchange(isSeen, true)) return;
  if (clicks.isEmpty()) {
    Report("pane", QString::fromStdString(pane->Text()));
    Report("caption", pane->window()->windowTitle());
    if (app::AreDark(pane->palette())) Report("colours", QStringLiteral("dark"));
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      const bool areCurves = window->objectName() == QStringLiteral("CurvesWindow");
      if (areCurves && window->isVisible()) Report("curves", QStringLiteral("shown"));
    }
    pane->window()->close();
    return;
  }
  pressed = pane->window()->findChild<QPushButton*>(clicks.takeFirst());
  // Pressed from the event loop, for a timer does not fire again while it is served.
  pressed->animateClick();
}

void StartWatching() {
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, &ActAsUser);
  constexpr int kInterval = 20;  // milliseconds
  timer->start(kInterval);
}

Q_COREAPP_STARTUP_FUNCTION(StartWatching)

// Tells that it was asked, shows a message where it refuses, and answers as VANTREL_TEST_DEPLOYMENT
// says.
bool AnswerAsTold(const deploy::MessageShower& showMessage) {
  Report("deployment", QStringLiteral("asked"));
  const bool goesOn = qEnvironmentVariable("VANTREL_TEST_DEPLOYMENT") == QStringLiteral("goes on");
  if (!goesOn) showMessage("Error copying program file.");
  return goesOn;
}

}  // namespace

int main(int argc, char* argv[]) {
#ifdef _WIN32
  ::_setmode(::_fileno(stdout), _O_BINARY);
#endif
  tests::TakeToolkitVariables();
  if (!qEnvironmentVariableIsSet("VANTREL_TEST_DEPLOYMENT")) return app::RunVantrel(argc, argv);
  return app::RunVantrel(argc, argv, AnswerAsTold);
}
