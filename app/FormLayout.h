// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QSize>

#include "app/FormRows.h"

class QPushButton;
class QWidget;

namespace app {

class CaptionCheckBox;
class FormColumn;
class NodeTree;
class OutputPane;
class StatusLine;
class TextBox;

// The size of the form as it is drawn, in device-independent pixels.
inline constexpr QSize kDesignSize(1180, 740);

// The column of controls at the left of the form, within its margins.
inline constexpr int kFormMargin = 8;
inline constexpr int kColumnWidth = 414;
inline constexpr int kTreeTop = 521;
inline constexpr int kTreeHeight = kDesignSize.height() - kFormMargin - kTreeTop;
inline constexpr int kHalfWidth = 203;  // of two controls side by side

// A button of the form with what a press of it runs.
struct PlacedButton {
  QPushButton* Button = nullptr;
  FormHandler Click = nullptr;
};

// A text box of the form with what Enter in it runs.
struct PlacedBox {
  TextBox* Box = nullptr;
  FormHandler Enter = nullptr;
};

// The controls of the form. The form owns them; each carries its name as its object name.
struct FormControls {
  std::vector<PlacedButton> Buttons;
  std::vector<PlacedBox> Boxes;
  TextBox* txtGroup = nullptr;
  TextBox* txtParam = nullptr;
  TextBox* txtPointLabel = nullptr;
  TextBox* txtAnalogLabel = nullptr;
  FormColumn* Column = nullptr;  // holds all but the pane
  CaptionCheckBox* chkOut = nullptr;
  NodeTree* tre = nullptr;
  OutputPane* txt = nullptr;
  StatusLine* Status = nullptr;
};

// Gives `form` its design size and its controls, each at its place, with its caption, its
// accessible name and its turn in the tab order (from left to right, then downwards).
FormControls LayOutForm(QWidget& form);

}  // namespace app
