// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#ifdef _WIN32
#include "deploy/WindowsHost.h"
#else
#include "deploy/PosixHost.h"
#endif

namespace tests {

#ifdef _WIN32
using SystemBase = deploy::WindowsHost;
#else
using SystemBase = deploy::PosixHost;
#endif

// The host of the system that this runs on, carrying the stand-ins.
class OwnSystem : public SystemBase {
 public:
  explicit OwnSystem(deploy::MessageShower showMessage);
};

}  // namespace tests
