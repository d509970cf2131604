// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tests {

// Lets the user's settings be looked for in a folder of the test while it lives. On Windows the
// system keeps that for the whole user, so no two tests may run at once, and they run under Wine
// alone.
class ConfigFolder {
 public:
  explicit ConfigFolder(std::string folder);
  ConfigFolder(const ConfigFolder&) = delete;
  ConfigFolder& operator=(const ConfigFolder&) = delete;
  ~ConfigFolder();

  // Has the system name `desktop` as the user's desktop. Where settings are a file of the folder,
  // that must be there.
  void NameDesktop(const std::string& desktop);

 private:
  std::string folder_;
};

}  // namespace tests
