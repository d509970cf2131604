// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace app {

// Shows a cursor all over the program while it lives: the wait cursor while the window is busy, the
// arrow while a busy command asks something.
class CursorOverride {
 public:
  explicit CursorOverride(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
  CursorOverride(const CursorOverride&) = delete;
  CursorOverride& operator=(const CursorOverride&) = delete;
  ~CursorOverride() { QGuiApplication::restoreOverrideCursor(); }
};

}  // namespace app
