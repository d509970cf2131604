// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "support/RuntimeError.h"

class QWidget;

namespace app {

// A plain message with an OK button, titled "Vantrel". Waits for the answer.
void ShowMessage(QWidget* owner, std::string_view text);

// An error that ends the program: its number, its description and, in a line of its own, what it is
// about where that is known. Waits for the answer.
void ShowRuntimeError(QWidget* owner, const modAllPurpose::RuntimeError& error);

}  // namespace app
