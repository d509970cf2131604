// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "deploy/SystemHost.h"

namespace deploy {

// Real files and processes, and the resources that were linked into the program's file.
class WindowsHost : public SystemHost {
 public:
  explicit WindowsHost(MessageShower showMessage);

  std::string LowerCase(const std::string& text) const override;
  std::span<const std::byte> Resource(const std::string& type,
                                      const std::string& name) const override;
  // A copy keeps the time of last writing and the attributes; a read-only file gives way too.
  void Copy(const std::string& from, const std::string& to) override;
  modWindowsFileInfo::FileTimes ReadTimes(const std::string& path) const override;
  void SetTimes(const std::string& path, const modWindowsFileInfo::FileTimes& times) override;
  void StartProcess(const std::string& path, WindowState window) override;
};

}  // namespace deploy
