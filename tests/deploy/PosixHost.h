// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "deploy/SystemHost.h"

namespace tests {

// The real files and processes of a POSIX system, where the program itself deploys nothing: with it
// the hand-over between processes can be watched here too. Its resources are the stand-ins.
class PosixHost : public deploy::SystemHost {
 public:
  explicit PosixHost(deploy::MessageShower showMessage);

  // Letters of ASCII alone: a name's case is a part of it here.
  std::string LowerCase(const std::string& text) const override;
  std::span<const std::byte> Resource(const std::string& type,
                                      const std::string& name) const override;
  modWindowsFileInfo::FileTimes ReadTimes(const std::string& path) const override;
  void SetTimes(const std::string& path, const modWindowsFileInfo::FileTimes& times) override;
  // Whether a program comes up minimised is for the desktop to say here.
  void StartProcess(const std::string& path, deploy::WindowState window) override;
};

}  // namespace tests
