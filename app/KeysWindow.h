// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace app {

// The keys of the window: every entry of the menus that has some, in the order of the menus.
class KeysWindow : public QDialog {
  Q_OBJECT

 public:
  explicit KeysWindow(QWidget* parent);
};

}  // namespace app
