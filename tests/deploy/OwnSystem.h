// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#ifdef _WIN32
#include "deploy/WindowsHost.h"
#else
#include "tests/deploy/PosixHost.h"
#endif

namespace tests {

// The host of the system that this runs on. A program that uses it carries the stand-ins as its
// resources.
#ifdef _WIN32
using OwnSystem = deploy::WindowsHost;
#else
using OwnSystem = PosixHost;
#endif

}  // namespace tests
