// SPDX-License-Identifier: GPL-3.0-or-later

#include "curves/Toolkit.h"

#include <array>
#include <cstdio>
#include <optional>
#include <string>

#include <QGuiApplication>

namespace curves {

namespace {

// What the toolkit remarks on its surroundings says nothing about a page.
void KeepQuiet(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type != QtFatalMsg) return;
  std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

// The arguments of the application, which keeps references to them.
struct Start {
  std::string Program = "vantrel-curves";
  std::string Option = "-platform";
  std::string Platform = "offscreen";
  std::array<char*, 4> Words = {Program.data(), Option.data(), Platform.data(), nullptr};
  int Count = 3;
  std::optional<QGuiApplication> Application;
};

}  // namespace

void StartToolkit() {
  if (QCoreApplication::instance() != nullptr) return;
  qInstallMessageHandler(KeepQuiet);
  qunsetenv("QT_QPA_PLATFORMTHEME");  // a theme may ask for a display of its own
  qputenv("QT_QPA_OFFSCREEN_NO_GLX", "1");
  // Never taken down: what the program's end does then is the system's to do, and faster.
  static Start& start = *new Start;
  start.Application.emplace(start.Count, start.Words.data());
}

}  // namespace curves
