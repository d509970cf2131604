// SPDX-License-Identifier: GPL-3.0-or-later

// What the menu of editing does with the pane.

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include "app/FindBar.h"
#include "app/OutputPane.h"
#include "app/TableCopy.h"
#include "app/TextBox.h"
#include "app/frmVantrel.h"

namespace app {

// Commands of the menus, which take none that leaves the form as it is.
// NOLINTBEGIN(readability-make-member-function-const)

void frmVantrel::Copy() {
  if (const auto* box = qobject_cast<QLineEdit*>(window()->focusWidget())) {
    box->copy();
  } else {
    controls_.txt->copy();
  }
}

void frmVantrel::CopyAsTable() {
  const QString selected = controls_.txt->SelectedColumns();
  if (!selected.isEmpty()) QApplication::clipboard()->setText(AsTable(selected));
}

void frmVantrel::Find() { findBar_->Open(); }

void frmVantrel::FindNext() { findBar_->FindNext(); }

void frmVantrel::FindPrevious() { findBar_->FindPrevious(); }

void frmVantrel::ZoomIn() { controls_.txt->zoomIn(); }

void frmVantrel::ZoomOut() { controls_.txt->zoomOut(); }

void frmVantrel::ZoomReset() { controls_.txt->zoomTo(0); }

// NOLINTEND(readability-make-member-function-const)

}  // namespace app
