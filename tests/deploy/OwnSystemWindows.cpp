// SPDX-License-Identifier: GPL-3.0-or-later

#include <utility>

#include "tests/deploy/OwnSystem.h"

namespace tests {

// The resources are linked into the program.
OwnSystem::OwnSystem(deploy::MessageShower showMessage) : SystemBase(std::move(showMessage)) {}

}  // namespace tests
