// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <variant>

#include <QKeyCombination>
#include <QPoint>
#include <QRect>

class QLineEdit;

namespace app {

class frmVantrel;
struct FormControls;

using FormHandler = void (frmVantrel::*)();

// A button: its object name, its caption ("&&" shows one ampersand), its place on the form as it is
// drawn, what a press of it runs, and the keys of its entry in the menus.
struct ButtonRow {
  const char* Name = nullptr;
  const char16_t* Caption = nullptr;
  QRect Place;
  FormHandler Click = nullptr;
  QKeyCombination Keys = Qt::Key_unknown;
};

// A text box: its object name, the label to the left of it, the place of both and the control.
struct TextBoxRow {
  const char* Name = nullptr;
  const char16_t* Label = nullptr;
  QPoint Place;
  QLineEdit* FormControls::*Control = nullptr;
};

using FormRow = std::variant<ButtonRow, TextBoxRow>;

// Every button and text box of the form in the tab order, from left to right and then downwards. A
// row here and a handler in the form are all that a new button and its entry in the menus take.
std::span<const FormRow> FormRows();

}  // namespace app
