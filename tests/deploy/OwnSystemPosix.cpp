// SPDX-License-Identifier: GPL-3.0-or-later

#include <utility>
#include <vector>

#include "tests/deploy/OwnSystem.h"
#include "tests/deploy/StandIns.h"

namespace tests {

namespace {

std::span<const deploy::PosixResource> Resources() {
  static const auto kResources = [] {
    std::vector<deploy::PosixResource> resources;
    for (const StandIn& standIn : StandIns()) {
      resources.push_back({standIn.Type, standIn.Name, std::as_bytes(std::span(standIn.Bytes))});
    }
    return resources;
  }();
  return kResources;
}

}  // namespace

OwnSystem::OwnSystem(deploy::MessageShower showMessage)
    : SystemBase(Resources(), std::move(showMessage)) {}

}  // namespace tests
