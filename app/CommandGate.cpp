// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CommandGate.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QMouseEvent>

namespace app {

namespace {

// Shuts the gate while it lives.
class Shut {
 public:
  explicit Shut(bool& shut) : shut_(shut) { shut = true; }
  Shut(const Shut&) = delete;
  Shut& operator=(const Shut&) = delete;
  ~Shut() { shut_ = false; }

 private:
  bool& shut_;
};

}  // namespace

void CommandGate::Run(const std::function<bool()>& command) {
  if (busy_) return;
  const Shut shut(busy_);
  if (command()) DropWhatWaits();
}

void CommandGate::DropWhatWaits() {
  constexpr int kMost = 100;  // milliseconds
  pressed_ = {};
  qApp->installEventFilter(this);
  {
    const Shut dropping(dropping_);
    QCoreApplication::processEvents(QEventLoop::AllEvents, kMost);
  }
  if (pressed_ == Qt::NoButton) qApp->removeEventFilter(this);
}

bool CommandGate::DropsMouse(const QMouseEvent& event) {
  const Qt::MouseButton button = event.button();
  const bool released = event.type() == QEvent::MouseButtonRelease;
  const bool dropped = released ? pressed_.testFlag(button) : dropping_;
  pressed_.setFlag(button, dropped && !released);
  if (!dropping_ && pressed_ == Qt::NoButton) qApp->removeEventFilter(this);
  return dropped;
}

bool CommandGate::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
      return DropsMouse(dynamic_cast<const QMouseEvent&>(*event));
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
      return dropping_;
    default:
      return false;
  }
}

}  // namespace app
