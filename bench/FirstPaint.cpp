// SPDX-License-Identifier: GPL-3.0-or-later

// The program itself, which is over as soon as its form was painted. So the time that it takes is
// that from the start to the first paint, on every system that the window has:
//   first_paint TRIAL

#include <cstdlib>

#include <QApplication>
#include <QEvent>

#include "app/Startup.h"

namespace {

class UntilPainted : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && watched->objectName() == QStringLiteral("frmVantrel")) {
      // The controls come first, and closing a window may take longer than showing it.
      QMetaObject::invokeMethod(
          qApp, [] { std::_Exit(0); }, Qt::QueuedConnection);
    }
    return false;
  }
};

void WatchFirstPaint() {
  static UntilPainted untilPainted;
  qApp->installEventFilter(&untilPainted);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(WatchFirstPaint)

int main(int argc, char** argv) {
  return app::RunVantrel(argc, argv, [](const deploy::MessageShower&) { return true; });
}
