// SPDX-License-Identifier: GPL-3.0-or-later

// What the menu of editing does with the pane.

#include "app/FindBar.h"
#include "app/OutputPane.h"
#include "app/frmVantrel.h"

namespace app {

void frmVantrel::Find() { findBar_->Open(); }

void frmVantrel::FindNext() { findBar_->FindNext(); }

void frmVantrel::FindPrevious() { findBar_->FindPrevious(); }

void frmVantrel::ZoomIn() { controls_.txt->zoomIn(); }

void frmVantrel::ZoomOut() { controls_.txt->zoomOut(); }

void frmVantrel::ZoomReset() { controls_.txt->zoomTo(0); }

}  // namespace app
