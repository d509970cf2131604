// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPrintDialog;

namespace app {

// Has the user choose a printer and how it prints; whether to print. Where there is none and files
// are not among the choices, a message says so.
bool ChoosePrinter(QPrintDialog& dialog);

}  // namespace app
