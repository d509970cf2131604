#include "tests/deploy/OwnSystem.h"

#include <utility>
#include <vector>

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
    : PosixHost(Resources(), std::move(showMessage)) {}

}  // namespace tests
