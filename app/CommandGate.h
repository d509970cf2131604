// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QObject>

class QMouseEvent;

namespace app {

// Lets one command run at a time. What a user presses, clicks or drops while it runs is dropped,
// also what the window system hands over only when it is done: nobody has seen its result by then.
class CommandGate : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  // Runs `command`, unless one is running. It returns whether the program goes on; where it does
  // not, what waits is left to the end of the program. An error of the command passes through.
  void Run(const std::function<bool()>& command);

  bool IsBusy() const { return busy_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void DropWhatWaits();
  bool DropsMouse(const QMouseEvent& event);

  bool busy_ = false;
  bool dropping_ = false;
  Qt::MouseButtons pressed_;  // dropped presses whose release is still to come
};

}  // namespace app
