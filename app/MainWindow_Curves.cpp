// SPDX-License-Identifier: GPL-3.0-or-later

// The curves window beside the program's.

#include "app/CurvesWindow.h"
#include "app/MainWindow.h"
#include "app/frmVantrel.h"

namespace app {

void MainWindow::ShowCurves(pages::PageKind page) {
  if (!curves_) {
    curves_ = std::make_unique<CurvesWindow>();
    CompareCurves();
  }
  curves_->Follow(form_->OpenFileSpec());
  curves_->ShowPage(page);
}

void MainWindow::FollowWithCurves() {
  if (curves_) curves_->FollowOpened(form_->OpenFileSpec());
}

void MainWindow::CompareCurves() {
  if (curves_) curves_->SetNormals(Normals());
}

void MainWindow::CloseCurves() {
  if (!curves_) return;
  curves_->close();
  curves_.reset();
}

}  // namespace app
