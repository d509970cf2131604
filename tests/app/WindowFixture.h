// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QString>

#include "app/MainWindow.h"
#include "tests/app/FormFixture.h"

namespace tests {

// The whole window of the program, worked by mouse and keys: the form is its client area.
class WindowTest : public FormTest {
 protected:
  WindowTest() : FormTest(Around::Window) {}

  // An entry of the menus, that of a button's command under the button's name.
  QAction* Entry(const char* name);
  // The menu of the bar that holds the entry.
  QMenu* MenuOf(const QAction* entry);

  // Opens its menu with the mouse and clicks the entry.
  void Choose(QAction* entry);
  void Choose(const char* name) { Choose(Entry(name)); }
  // Opens the menu by its letter and goes to the entry with the arrow keys.
  void ChooseByArrows(QAction* entry);
  // Presses the first keys of the entry from where the focus is.
  void PressKeysOf(const QAction* entry);

  // Gives the client area a size and waits until the window system has taken it.
  void ResizeClient(QSize size);

  app::MainWindow& window_ = dynamic_cast<app::MainWindow&>(*top_);
};

}  // namespace tests
