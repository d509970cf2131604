// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QLineEdit;
class QPushButton;
class QWidget;

namespace app {

class CaptionCheckBox;
class NodeTree;
class OutputPane;

// The size of the form as it is drawn, in device-independent pixels.
inline constexpr QSize kDesignSize(1180, 740);

// The controls of the form. The form owns them; each carries its name here as its object name.
struct FormControls {
  QPushButton* cmdOpen = nullptr;
  QPushButton* cmdExit = nullptr;
  QPushButton* cmdShowHeaderInfo = nullptr;
  QPushButton* cmdShowParameterHeader = nullptr;
  QLineEdit* txtGroup = nullptr;
  QLineEdit* txtParam = nullptr;
  QPushButton* cmdShowAllGroups = nullptr;
  QPushButton* cmdShowAllGroupsAndAllParams = nullptr;
  QPushButton* cmdShowMatchingGroupAndAllParams = nullptr;
  QPushButton* cmdShowMatchingGroupAndMatchingParam = nullptr;
  QLineEdit* txtPointLabel = nullptr;
  QPushButton* cmdShowPointLabels = nullptr;
  QPushButton* cmdShowPointData = nullptr;
  QPushButton* cmdShowPointDataWithEvents = nullptr;
  QLineEdit* txtAnalogLabel = nullptr;
  QPushButton* cmdShowAnalogData = nullptr;
  QPushButton* cmdShowAnalogDataWithEvents = nullptr;
  QPushButton* cmdShowStrikeOffEvents = nullptr;
  QPushButton* cmdShowSingleValueStrikeOffMeasures = nullptr;
  QPushButton* cmdShowNormalized = nullptr;
  QPushButton* cmdWriteGcdFiles = nullptr;
  CaptionCheckBox* chkOut = nullptr;
  NodeTree* tre = nullptr;
  OutputPane* txt = nullptr;
};

// Gives `form` its design size and its controls, each at its place, with its caption, its
// accessible name and its turn in the tab order (from left to right, then downwards).
FormControls LayOutForm(QWidget& form);

}  // namespace app
