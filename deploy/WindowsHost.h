#pragma once

#include <string>

#include "deploy/SystemHost.h"

namespace deploy {

// Real files and processes, and the resources that were linked into the program's file.
class WindowsHost : public SystemHost {
 public:
  explicit WindowsHost(MessageShower showMessage);

  std::span<const std::byte> Resource(const std::string& type,
                                      const std::string& name) const override;
  // A copy keeps the times of last writing and the attributes.
  void Copy(const std::string& from, const std::string& to) override;
  void StartProcess(const std::string& path, WindowState window) override;
};

}  // namespace deploy
