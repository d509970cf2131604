// SPDX-License-Identifier: GPL-3.0-or-later

// What the menu of help shows.

#include "app/AboutText.h"
#include "app/KeysWindow.h"
#include "app/MainWindow.h"
#include "app/ManualWindow.h"
#include "app/MessageBoxes.h"

namespace app {

void MainWindow::ShowManual() {
  // No child of this window, which it may cover.
  if (!manual_) manual_ = std::make_unique<ManualWindow>(ManualText(), nullptr);
  manual_->show();
  manual_->raise();
  manual_->activateWindow();
}

void MainWindow::ShowKeys() { KeysWindow(this).exec(); }

void MainWindow::ShowAbout() { ShowMessage(this, AboutText()); }

}  // namespace app
