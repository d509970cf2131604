// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PrinterChoice.h"

#include <QPrintDialog>
#include <QPrinter>

#include "app/MessageBoxes.h"

namespace app {

namespace {

// The dialog of Windows shows nothing where there is no printer.
#ifdef _WIN32
constexpr bool kDialogKnowsFiles = false;
#else
constexpr bool kDialogKnowsFiles = true;
#endif

}  // namespace

bool ChoosePrinter(QPrintDialog& dialog) {
  if (!kDialogKnowsFiles && dialog.printer()->outputFormat() != QPrinter::NativeFormat) {
    ShowMessage(dialog.parentWidget(),
                "There is no printer on this computer. Reports and pages can be saved as files.");
    return false;
  }
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace app
