#pragma once

#include "deploy/PosixHost.h"
#include "tests/deploy/StandIns.h"

namespace tests {

// The host of the system that this runs on, carrying the stand-ins.
class OwnSystem : public deploy::PosixHost {
 public:
  explicit OwnSystem(deploy::MessageShower showMessage);
};

}  // namespace tests
