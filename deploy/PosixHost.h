// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "deploy/SystemHost.h"

namespace deploy {

// One resource of a program on a POSIX system, which has no place of its own for them.
struct PosixResource {
  std::string_view Type;
  std::string_view Name;
  std::span<const std::byte> Bytes;
};

// Real files and processes, and resources from a table that the program brings along.
class PosixHost : public SystemHost {
 public:
  // The table must last as long as the host.
  PosixHost(std::span<const PosixResource> resources, MessageShower showMessage);

  // Letters of ASCII alone: a name's case is a part of it here.
  std::string LowerCase(const std::string& text) const override;
  std::span<const std::byte> Resource(const std::string& type,
                                      const std::string& name) const override;
  // Whether a program comes up minimised is for the desktop to say here.
  void StartProcess(const std::string& path, WindowState window) override;

 private:
  std::span<const PosixResource> resources_;
};

}  // namespace deploy
