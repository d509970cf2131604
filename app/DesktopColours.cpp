// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/DesktopColours.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QStyle>

#include "app/DarkOutline.h"

namespace app {

namespace {

constexpr QLatin1String kStyleOfWindows("windowsvista");
constexpr QLatin1String kStyleOfTheDark("fusion");

// In the toolkit's own dark colours a box without a mark looks like a marked one.
void TakeColourOfMarksFromBoxes() {
  for (const char* kind : {"QCheckBox", "QRadioButton"}) {
    if (QApplication::palette(kind) == QApplication::palette()) continue;
    QApplication::setPalette(QApplication::palette(), kind);
  }
}

void FollowColours() {
  const QString style = AreDark(QApplication::palette()) ? kStyleOfTheDark : kStyleOfWindows;
  if (QApplication::style()->name() != style) QApplication::setStyle(style);
  TakeColourOfMarksFromBoxes();
}

class ColourFollower : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
      QMetaObject::invokeMethod(this, &FollowColours, Qt::QueuedConnection);
    }
    return false;
  }
};

}  // namespace

void AskForDarkColours() {
#ifdef _WIN32
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
  }
#endif
}

void FollowDesktopColours() {
  if (QApplication::style()->name() != kStyleOfWindows) return;
  qApp->installEventFilter(new ColourFollower(qApp));
  FollowColours();
}

}  // namespace app
