// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <QByteArray>
#include <QtGlobal>

namespace tests {

// Lets the user's settings be looked for in a folder of the test while it lives.
class ConfigFolder {
 public:
  explicit ConfigFolder(const std::string& folder) {
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder));
  }
  ConfigFolder(const ConfigFolder&) = delete;
  ConfigFolder& operator=(const ConfigFolder&) = delete;
  ~ConfigFolder() { qunsetenv("XDG_CONFIG_HOME"); }
};

}  // namespace tests
