// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "deploy/Host.h"

namespace deploy {

// Shows a text in a message box and returns when it was closed.
using MessageShower = std::function<void(const std::string& text)>;

// What the hosts of all systems share: real files, real waits, and messages shown by whoever has a
// window.
class SystemHost : public Host {
 public:
  char FolderSeparator() const override;
  std::string ProgramPath() const override { return programPath_; }
  bool ErrorIsPending() const override { return programPath_.empty(); }

  bool FileExists(const std::string& path) const override;
  bool IsFolder(const std::string& path) const override;
  void MakeFolder(const std::string& path) override;
  void RemoveFile(const std::string& path) override;
  void Copy(const std::string& from, const std::string& to) override;
  void WriteNewFile(const std::string& path, std::span<const std::byte> bytes) override;

  void Wait(std::chrono::milliseconds time) override;
  void ShowMessage(const std::string& text) override { showMessage_(text); }

 protected:
  // `programPath` is empty where the system cannot tell.
  SystemHost(std::string programPath, MessageShower showMessage);

 private:
  std::string programPath_;
  MessageShower showMessage_;
};

}  // namespace deploy
