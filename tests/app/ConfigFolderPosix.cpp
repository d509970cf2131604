// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <utility>

#include <QByteArray>
#include <QtGlobal>

#include "tests/app/ConfigFolder.h"

namespace tests {

ConfigFolder::ConfigFolder(std::string folder) : folder_(std::move(folder)) {
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_));
}

ConfigFolder::~ConfigFolder() { qunsetenv("XDG_CONFIG_HOME"); }

void ConfigFolder::NameDesktop(const std::string& desktop) {
  std::ofstream(folder_ + "/user-dirs.dirs") << "XDG_DESKTOP_DIR=\"" << desktop << "\"\n";
}

}  // namespace tests
